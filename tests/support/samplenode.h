#pragma once

#include "abstractsubsetting.h"

/// A setting node with as little as possible: a type, a name and a category.
class SampleNode : public JEDVEPLUGIN::AbstractSubSetting
{
public:
    explicit SampleNode(const QString& type, const QString& name = QString(),
                        JEDVEPLUGIN::ISubSetting* parent = nullptr)
        : AbstractSubSetting(parent)
        , m_type(type)
        , m_name(name)
    {
    }

    QString getSettingType() const override { return m_type; }
    QString getDisplayName() const override { return m_name; }
    bool setDisplayName(const QString& name) override
    {
        m_name = name;
        return true;
    }
    QStringList parameterSetNames() const override { return QStringList(); }
    QString parameterSetText(const QString&) const override { return QString(); }
    bool setParameterSetText(const QString&, const QString&) override { return false; }
    QWidget* getWidget() override { return m_widget; }
    QList<JEDVEPLUGIN::Problem> problems() const override { return {}; }
    QString getSettingCategory() const override { return m_category; }

    /// Appends and sets the parent link, as a factory does.
    void adopt(JEDVEPLUGIN::ISubSetting* child)
    {
        appendSubsetting(child);
        child->setParent(this);
    }

    QString m_type;
    QString m_name;
    QString m_category;
    QWidget* m_widget = nullptr; // Not owned.
};
