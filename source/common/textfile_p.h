#pragma once

#include <optional>

class QString;

namespace JEDVEPLUGIN {

/// The whole of a text file, decoded as UTF-8, NUL characters and all. Links are followed. Nothing for a file
/// that does not open, and for what cannot be read within bounds: devices, pipes, folders, and files above
/// 64 MiB.
std::optional<QString> readTextFile(const QString& path);

} // namespace JEDVEPLUGIN
