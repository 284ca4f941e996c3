#pragma once

#include "abstractsubsetting.h"

#include <support/samplenode.h>

#include <functional>

namespace SettingNodes {

using JEDVEPLUGIN::ISubSetting;

/// Tells the test what it is asked for, in the order of the questions.
class WatchedNode : public SampleNode
{
public:
    WatchedNode(const QString& type, const QString& name, QStringList* log)
        : SampleNode(type, name)
        , m_log(log)
    {
    }
    ~WatchedNode() override
    {
        *m_log << "delete " + m_name;
        if (m_atEnd)
            m_atEnd();
    }
    void moved() override { *m_log << "moved " + m_name; }
    QWidget* getWidget() override
    {
        *m_log << "widget " + m_name;
        return m_widget;
    }
    void setReadOnly(bool readOnly, bool subtree) override
    {
        *m_log << QString("readOnly %1 %2%3").arg(m_name).arg(readOnly).arg(subtree);
        SampleNode::setReadOnly(readOnly, subtree);
    }

    QStringList* m_log;
    std::function<void()> m_atEnd;
};

/// Answers as it is told, where the base would answer from its own members.
class WilfulNode : public SampleNode
{
public:
    using SampleNode::otherTypesSameLevel;
    using SampleNode::SampleNode;
    static int charsPerIndent() { return CHARS_PER_INDENT; }

    ISubSetting* child(int index) override { return m_child ? m_child(index) : SampleNode::child(index); }
    int childIndex(ISubSetting* child) const override
    {
        return m_childIndex ? m_childIndex(child) : SampleNode::childIndex(child);
    }
    int childCount() const override { return m_childCount ? m_childCount() : SampleNode::childCount(); }
    ISubSetting* parent() const override { return m_parentNode ? m_parentNode() : SampleNode::parent(); }
    bool isReadOnly() const override { return m_isReadOnly ? m_isReadOnly() : SampleNode::isReadOnly(); }
    int typeCount(const QString& type) const override
    {
        return m_typeCount ? m_typeCount() : SampleNode::typeCount(type);
    }

    std::function<ISubSetting*(int)> m_child;
    std::function<int(ISubSetting*)> m_childIndex;
    std::function<int()> m_childCount;
    std::function<ISubSetting*()> m_parentNode;
    std::function<bool()> m_isReadOnly;
    std::function<int()> m_typeCount;
};

/// The children's names in display order.
inline QString shown(ISubSetting& node)
{
    QStringList names;
    for (int i = 0; i < node.childCount(); ++i)
        names << node.child(i)->getDisplayName();
    return names.join(' ');
}

/// The names of the children of a type, by their positions.
inline QString shownOfType(const ISubSetting& node, const QString& type)
{
    QStringList names;
    for (int i = 0; i < node.typeCount(type); ++i)
        names << node.settingAtTypePosition(type, i)->getDisplayName();
    return names.join(' ');
}

/// Appends a child for each name; its type is the first letter.
inline QList<SampleNode*> fill(SampleNode& node, const QString& names)
{
    QList<SampleNode*> children;
    for (const QString& name : names.split(' ', Qt::SkipEmptyParts)) {
        children << new SampleNode(name.left(1), name);
        node.adopt(children.last());
    }
    return children;
}

} // namespace SettingNodes
