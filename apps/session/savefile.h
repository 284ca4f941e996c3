#pragma once

#include <QByteArray>
#include <QString>

namespace Session {

/// Files larger than this are not read, in bytes.
constexpr qint64 MAX_FILE_SIZE = 64 * 1024 * 1024;

/// Puts \p content in place of the file \p path, all or nothing: whoever reads the path sees the old content
/// or the new one, also when the disk is full or the process is killed meanwhile; what such a process left beside
/// the file goes with the next save. Every save of the applications goes through here. A link is followed; something that is no regular file (folder, device) is
/// refused. \param error  receives the reason, for a person to read; may be null \return false, with the old
/// file as it was, if not everything could be written
bool saveFile(const QString& path, const QByteArray& content, QString* error);

/// Reads a regular file of at most MAX_FILE_SIZE bytes; anything else (folder, device, pipe) is not opened.
/// \param error  receives the reason, for a person to read; may be null
/// \return false, with \p content empty, if the file could not be read
bool readFile(const QString& path, QByteArray* content, QString* error);

/// The text of UTF-8 bytes, all of it: a NUL stays a character, so that readers of markup see and refuse it.
QString decodedText(const QByteArray& content);

} // namespace Session
