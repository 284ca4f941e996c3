#pragma once

#include "jedsubsettingfactory.h"

/// A plug-in without settings of its own that writes down what the editor asks of it.
/// \tparam Base  JEDSubSettingFactory or what derives from it
template <class Base>
class StubFactory : public Base
{
public:
    using Base::Base;

    JEDVEPLUGIN::ISubSetting* createSubSetting(const QString& type, JEDVEPLUGIN::ISubSetting*) override
    {
        return told("createSubSetting " + type);
    }
    JEDVEPLUGIN::ISubSetting* createSubSettingByUser(const QString& type, JEDVEPLUGIN::ISubSetting*,
                                                     QWidget*) override
    {
        return told("createSubSettingByUser " + type);
    }
    JEDVEPLUGIN::ISubSetting* duplicateSubSetting(JEDVEPLUGIN::ISubSetting*) override
    {
        return told("duplicateSubSetting");
    }
    bool deleteSubSetting(JEDVEPLUGIN::ISubSetting*) override { return told("deleteSubSetting") != nullptr; }
    JEDVEPLUGIN::ISubSetting* pasteMimeText(const QString& text, JEDVEPLUGIN::ISubSetting*) override
    {
        return told("pasteMimeText " + text);
    }
    QString settingDisplayName(const QString& type) const override { return type; }
    bool claimsSubjob(const JobXml::Subjob&) const override { return false; }
    JEDVEPLUGIN::ISubSetting* readSubjob(const JobXml::Subjob&, QList<JEDVEPLUGIN::Problem>*) override
    {
        return told("readSubjob");
    }
    bool writeSubjob(JEDVEPLUGIN::ISubSetting*, JobXml::Subjob&, QList<JEDVEPLUGIN::Problem>*) override
    {
        return told("writeSubjob") != nullptr;
    }
    void clear() override { told("clear"); }
    bool isModified() const override { return false; }
    void setModified(bool) override { told("setModified"); }
    bool isDeletable(JEDVEPLUGIN::ISubSetting*) const override { return true; }
    const QStringList& supportedTypesOf(const QString& type) const override
    {
        m_askedTypes.append(type);
        return m_typesOf;
    }
    QList<JEDVEPLUGIN::ISubSetting*> topLevelSettings() const override { return {}; }
    QList<JEDVEPLUGIN::ResourceUse> resourceUse() const override { return {}; }
    QString description() const override { return QString(); }

    QStringList m_calls;
    QStringList m_typesOf;            // What supportedTypesOf() gives.
    mutable QStringList m_askedTypes; // What it was asked.

protected:
    std::nullptr_t told(const QString& call)
    {
        m_calls.append(call);
        return nullptr;
    }
};

/// The same straight on JEDSubSettingFactory; writes down as well what that asks.
class SampleFactory : public StubFactory<JEDVEPLUGIN::JEDSubSettingFactory>
{
public:
    using StubFactory::StubFactory;

    bool needsUserInputOnCreation(const QString&) const override { return false; }

    // What only plug-ins reach.
    using JEDSubSettingFactory::defaultManualPath;
    using JEDSubSettingFactory::jobTypes;
    using JEDSubSettingFactory::resourceDir;
    using JEDSubSettingFactory::rulesDir;
    using JEDSubSettingFactory::supportedTypeList;

protected:
    void changeReadOnly(bool readOnly) override
    {
        told(QString("changeReadOnly %1, is %2").arg(readOnly).arg(isReadOnly()));
    }
};
