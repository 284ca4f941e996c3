#pragma once

#include <QStringList>
#include <values/node.h>
#include <values/valuelist.h>
#include <values/valuenumeric.h>
#include <values/valueselection.h>

// Value trees as text, to compare whole trees at once.

namespace JedTest {

inline QString numberText(double number)
{
    return ValueText::fromDouble(number);
}

inline QString numberText(__int64 number)
{
    return QString::number(number);
}

inline QString numberText(int number)
{
    return QString::number(number);
}

template <class Numeric>
QString numericText(const char* kind, const Numeric& value)
{
    return QStringLiteral("%1 %2 in %3..%4 by %5")
        .arg(kind, numberText(value.GetValue()), numberText(value.GetMin()), numberText(value.GetMax()),
             numberText(value.GetStep()));
}

inline QString selectionText(const ValueSelection& selection)
{
    QStringList items;
    for (int i = 0; i < selection.GetItemCount(); ++i) {
        const SelectionItem* const item = selection.GetItem(i);
        items.append(QStringLiteral("%1=%2/%3")
                         .arg(item->GetName(), ValueText::fromDouble(item->GetValue()),
                              QString::number(item->GetKey())));
    }
    return QStringLiteral("selection %1 of %2")
        .arg(QString::number(selection.GetCurrentIndex()), items.join(','));
}

/// Kind and content of a value, so that its exact type shows.
inline QString contentOf(const ValueBase* value)
{
    if (const auto* const numeric = dynamic_cast<const NumericDouble*>(value))
        return numericText("double", *numeric);
    if (const auto* const numeric = dynamic_cast<const NumericInt*>(value))
        return numericText("int", *numeric);
    if (const auto* const numeric = dynamic_cast<const NumericInt64*>(value))
        return numericText("int64", *numeric);
    if (dynamic_cast<const ValueBool*>(value) != nullptr)
        return QStringLiteral("bool ") + value->GetText();
    if (dynamic_cast<const ValueDouble*>(value) != nullptr)
        return QStringLiteral("double ") + value->GetText();
    if (dynamic_cast<const ValueInt*>(value) != nullptr)
        return QStringLiteral("int ") + value->GetText();
    if (dynamic_cast<const ValueInt64*>(value) != nullptr)
        return QStringLiteral("int64 ") + value->GetText();
    if (dynamic_cast<const ValueString*>(value) != nullptr)
        return QStringLiteral("string ") + value->GetText();
    if (const auto* const selection = dynamic_cast<const ValueSelection*>(value))
        return selectionText(*selection);
    if (const auto* const list = dynamic_cast<const StringList*>(value))
        return QStringLiteral("list ") + QStringList(list->GetItems().toList()).join('|');
    return QStringLiteral("unknown");
}

/// One "node/value: content" for each value below the child nodes of \p root.
inline QStringList contentsBelow(const Node& root)
{
    QStringList lines;
    for (const Node* const child : root.GetChildNodes()) {
        for (const ValueBase* const value : child->GetValues())
            lines.append(
                QStringLiteral("%1/%2: %3").arg(child->GetName(), value->GetName(), contentOf(value)));
    }
    return lines;
}

} // namespace JedTest
