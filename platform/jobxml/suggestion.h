#pragma once

#include <jobxml/jobxml_export.h>
#include <QString>
#include <QStringList>

namespace JobXml {

/// The candidate that \p word was probably meant to be: the one with the fewest letters to change, case
/// ignored; the earlier one of two that are equally near. A null string if none is near enough (more than
/// three letters to change, or a third of them).
JOBXML_EXPORT QString nearest(const QString& word, const QStringList& candidates);

/// A sentence for error messages: ' Did you mean "X"?' with a leading blank, or empty without a near
/// candidate.
JOBXML_EXPORT QString suggestion(const QString& word, const QStringList& candidates);

} // namespace JobXml
