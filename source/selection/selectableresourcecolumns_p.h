#pragma once

namespace JEDVEPLUGIN {

/// Columns of the table of selectable resources.
enum SelectableResourceColumn : int {
    COLUMN_BASE_RESOURCE,
    COLUMN_COUNT,
    COLUMN_MAX_COUNT,
    COLUMNS,
};

} // namespace JEDVEPLUGIN
