#pragma once

#include <velmogui/velmogui_export.h>

#include <QStringList>
#include <QVector>

namespace VelmoGui {

/// The cells of a text as spreadsheets put it on the clipboard or write it into files: a line for each row, cells
/// separated by tabs or, where there is no tab, by semicolons; a comma is part of a number. Cells may be quoted.
/// Blanks around cells and empty rows at the end are left out.
VELMOGUI_EXPORT QVector<QStringList> spreadsheetRows(const QString& text);

} // namespace VelmoGui
