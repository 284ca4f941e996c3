#pragma once

#include <zubase/errorhandler.h>
#include <zubase/zubase_export.h>

#include <QString>

/// Writes a message to Qt's logging, category "jobeditorve.trace", level "info", with the file and line given
/// here as its context, and to the sinks of the ErrorHandler. Does not look at the trace mask: ask
/// ErrorHandler::GetTraceMask() first. Any thread.
/// \param message  the text as it stands, no placeholders
/// \param sourceFile  bare name of the source file, may be null
/// \param line  number that log filters match
ZUBASE_EXPORT void _Q_Trace(const QString& message, const char* sourceFile, int line);
