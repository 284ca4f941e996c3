#pragma once

#include <quilappstartup/libraryexaminer.h>

/// What the header of a file says of it. Only LIBRARY_ACCEPTED, LIBRARY_UNREADABLE, LIBRARY_NO_LIBRARY,
/// LIBRARY_OTHER_MACHINE and LIBRARY_TRUNCATED occur.
struct LibraryHeader
{
    TLibraryVerdict verdict = LIBRARY_ACCEPTED;
    QString found;    // the error, machine or size in bytes that was found
    QString expected; // what it should be
};

/// Reads the header of a regular file that is not empty. On a system whose loader is not known here,
/// everything is accepted.
LibraryHeader readLibraryHeader(const QString& path);
