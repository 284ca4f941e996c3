#pragma once

#include "isubsetting.h"

#include <QHash>
#include <QList>

/// The children of a setting node kept in the most straightforward way: every question about a type asks each
/// child for its type. Yardstick of the benchmark and oracle of the random test. Owns nothing.
class NaiveChildren
{
public:
    void append(JEDVEPLUGIN::ISubSetting* child)
    {
        const QString type = child->getSettingType();
        int place = m_children.size();
        for (int i = m_children.size() - 1; i >= 0; --i) {
            if (m_children.at(i)->getSettingType() == type) {
                place = i + 1;
                break;
            }
        }
        m_children.insert(place, child);
        m_typeIndex[type].append(child);
    }

    void remove(JEDVEPLUGIN::ISubSetting* child)
    {
        m_children.removeAll(child);
        m_typeIndex[child->getSettingType()].removeAll(child);
    }

    void move(int from, int to)
    {
        const int last = m_children.size() - 1;
        if (last < 1)
            return;
        from = from < 0 ? 0 : (from > last ? last : from);
        if (from < to)
            --to;
        to = to < 0 ? 0 : (to > last ? last : to);
        JEDVEPLUGIN::ISubSetting* child = m_children.takeAt(from);
        m_children.insert(to, child);
        m_typeIndex[child->getSettingType()] = ofType(child->getSettingType());
    }

    QList<JEDVEPLUGIN::ISubSetting*> ofType(const QString& type) const
    {
        QList<JEDVEPLUGIN::ISubSetting*> found;
        for (JEDVEPLUGIN::ISubSetting* child : m_children) {
            if (child->getSettingType() == type)
                found.append(child);
        }
        return found;
    }

    QList<JEDVEPLUGIN::ISubSetting*> m_children;
    QHash<QString, QList<JEDVEPLUGIN::ISubSetting*>> m_typeIndex;
};
