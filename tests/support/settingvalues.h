#pragma once

#include <jobxml/settings.h>
#include <support/settingfields.h>
#include <values/node.h>
#include <values/valuelist.h>
#include <values/valuenumeric.h>
#include <values/valueselection.h>

#include <memory>

namespace JedTest {

/// A new value of the node, which owns it.
template <class T>
T* addValue(Node& node, const QString& id)
{
    auto* value = new T;
    value->SetName(id);
    node.AddChild(value);
    return value;
}

/// A node outside the tree, named after its parameter set.
inline std::unique_ptr<Node> makeNode(const QString& set)
{
    auto node = std::make_unique<Node>();
    node->SetName(set);
    return node;
}

/// Items are numbered from 0; none is the current one.
inline ValueSelection* addSelection(Node& node, const QString& id, const QStringList& names)
{
    auto* selection = addValue<ValueSelection>(node, id);
    for (int i = 0; i < names.size(); ++i)
        selection->AddItem(names.at(i), i, i);
    return selection;
}

/// Texts that a list of the field takes, not in any order.
inline QStringList twoItems(const REPORTGENERATOR::Field& field)
{
    if (field.kind == REPORTGENERATOR::FieldKind::Enumeration)
        return {field.enumeration->allNames().constLast(), field.enumeration->allNames().constFirst()};
    return field.isNumber() ? QStringList{"433920000", "0"} : QStringList{"one & <two>", "", "  three"};
}

/// A valid number that is not the default.
inline double otherReal(const REPORTGENERATOR::Field& field)
{
    return field.isInRange(field.defaultReal + 0.5) ? field.defaultReal + 0.5 : field.defaultReal - 0.5;
}

/// A valid number that is not the default.
inline qint64 otherInteger(const REPORTGENERATOR::Field& field)
{
    return field.isInRange(field.defaultInteger + 1) ? field.defaultInteger + 1 : field.defaultInteger - 1;
}

/// A value of the field's own kind; with what a fresh value has, or with something that is not the field's default.
inline void addValueFor(Node& node, const PathAndField& row, bool filled)
{
    const REPORTGENERATOR::Field& field = *row.field;
    if (field.list) {
        auto* list = addValue<StringList>(node, row.path);
        if (filled)
            list->SetItems(twoItems(field).toVector());
    } else if (field.kind == REPORTGENERATOR::FieldKind::Boolean) {
        addValue<ValueBool>(node, row.path)->SetValue(filled && field.defaultInteger == 0);
    } else if (field.kind == REPORTGENERATOR::FieldKind::Int) {
        addValue<ValueInt>(node, row.path)->SetValue(filled ? int(otherInteger(field)) : 0);
    } else if (field.kind == REPORTGENERATOR::FieldKind::Long) {
        addValue<ValueInt64>(node, row.path)->SetValue(filled ? otherInteger(field) : 0);
    } else if (field.kind == REPORTGENERATOR::FieldKind::Enumeration) {
        ValueSelection* selection = addSelection(node, row.path, field.enumeration->allNames());
        if (filled)
            selection->SelectIndex(field.defaultInteger == 0 ? selection->GetItemCount() - 1 : 0);
    } else if (field.isNumber()) {
        addValue<ValueDouble>(node, row.path)->SetValue(filled ? otherReal(field) : 0);
    } else {
        const QString text = field.kind == REPORTGENERATOR::FieldKind::DateTime ? "2024-02-29T12:00:00Z"
                                                                                : "text of " + row.path;
        addValue<ValueString>(node, row.path)->SetValue(filled ? text : QString());
    }
}

/// A node with one value for each field of the set.
inline std::unique_ptr<Node> nodeForEveryField(const QString& set, bool filled)
{
    auto node = makeNode(set);
    for (const PathAndField& row : settingFields(*JobXml::findParameterSet(set)->table))
        addValueFor(*node, row, filled);
    return node;
}

/// Text of an element with that content.
inline QString inElement(const QString& content, const char* element = "FFM_Settings")
{
    return QStringLiteral("<%1>%2</%1>").arg(QLatin1String(element), content);
}

} // namespace JedTest
