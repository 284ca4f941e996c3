#pragma once

#include <jobxml/tunerproperties.h>
#include <values/node.h>
#include <values/valuelist.h>
#include <values/valuenumeric.h>
#include <values/valueselection.h>

/// The value tree of a component by the plainest code: each child node is made, then looked up by its id, and each
/// value is made by its kind.
class NaiveValueTree
{
public:
    static void create(Node& root, const QVector<JobXml::Node>& nodes)
    {
        for (const JobXml::Node& node : nodes) {
            root.AddChildNode(node.Getid());
            Node* const child = root.GetChildNode(node.Getid());
            for (const JobXml::ValueItem& item : node.GetValueItem()) {
                ValueBase* const value = valueOf(item);
                if (value != nullptr && child != nullptr)
                    child->AddChild(value, QString());
                else
                    delete value;
            }
        }
    }

    /// Null for an item of no kind. The caller owns it.
    static ValueBase* valueOf(const JobXml::ValueItem& item)
    {
        switch (item.GetChoiceValueItem()) {
        case 0:
            return plain(new ValueBool, item.GetValueBoolean());
        case 1:
            return plain(new ValueDouble, item.GetValueFloat());
        case 2:
            return plain(new ValueInt, item.GetValueInt());
        case 3:
            return plain(new ValueInt64, item.GetValueInt64());
        case 4:
            return ranged(new NumericDouble, item.GetValueNumericFloat());
        case 5:
            return ranged(new NumericInt, item.GetValueNumericInt());
        case 6:
            return ranged(new NumericInt64, item.GetValueNumericInt64());
        case 7:
            return selection(item.GetValueSelection());
        case 8:
            return plain(new ValueString, item.GetValueString());
        case 9:
            return list(item.GetValueStringList());
        default:
            return nullptr;
        }
    }

private:
    template <class Kind, class Item>
    static ValueBase* plain(Kind* value, const Item& item)
    {
        value->SetName(item.Getid());
        value->SetValue(item.Getvalue());
        return value;
    }

    template <class Kind, class Item>
    static ValueBase* ranged(Kind* value, const Item& item)
    {
        value->SetName(item.Getid());
        value->SetMinMax(item.Getmin(), item.Getmax(), item.Getstep());
        value->SetValue(item.Getvalue());
        return value;
    }

    static ValueBase* selection(const JobXml::ValueSelection& item)
    {
        auto* const value = new ValueSelection;
        value->SetName(item.Getid());
        for (const JobXml::SelectionItem& entry : item.GetSelectionItem())
            value->AddItem(entry.Getname(), entry.Getvalue(), static_cast<int>(entry.Getvalue()));
        value->SelectIndex(item.Getindex());
        return value;
    }

    static ValueBase* list(const JobXml::ValueStringList& item)
    {
        auto* const value = new StringList;
        value->SetName(item.Getid());
        for (const JobXml::StringItem& entry : item.GetStringItem())
            value->PushBack(entry.Getvalue());
        return value;
    }
};
