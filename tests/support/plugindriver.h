#pragma once

#include <support/tracerecorder.h>

#include <ijobeditorplugin.h>
#include <jedabstractsubsettingfactory.h>

#include <QPluginLoader>

#include <memory>

namespace JedTest {

/// A plug-in that is loaded and started as the editor does it, for tests that drive its factory. The installation is to
/// be chosen before.
class PluginDriver
{
public:
    /// \param file      of the plug-in's library; the test ends if it cannot be loaded
    /// \param path      value-tree path below which its node lies
    /// \param rulesDir  folder of its rule scripts; empty: no rules
    explicit PluginDriver(const QString& file, const QString& path = QStringLiteral("/Test/"),
                          const QString& rulesDir = QString())
        : m_loader(file)
    {
        auto* const plugin = qobject_cast<JEDVEPLUGIN::IJobEditorPlugin*>(m_loader.instance());
        if (!plugin)
            qFatal("%s", qPrintable(m_loader.errorString()));
        m_factory.reset(plugin->createFactory());
        TraceRecorder traces; // The names of the tuner property files.
        m_factory->setRulesDir(rulesDir);
        m_factory->initialize(path, nullptr);
        m_factory->initializeRuleEngine();
    }

    JEDVEPLUGIN::JEDAbstractSubSettingFactory* operator->() const { return m_factory.get(); }
    JEDVEPLUGIN::JEDAbstractSubSettingFactory* get() const { return m_factory.get(); }

private:
    QPluginLoader m_loader;
    std::unique_ptr<JEDVEPLUGIN::JEDAbstractSubSettingFactory> m_factory;
};

} // namespace JedTest
