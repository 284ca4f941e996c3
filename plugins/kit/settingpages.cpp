#include <kit/settingnode.h>
#include <kit/settingpages.h>

#include <jobxml/settings.h>
#include <QShortcut>

namespace PluginKit {

SettingPages::SettingPages(SettingNode& node, QWidget* parent)
    : TabWidgetEx(parent)
    , m_node(node)
{
    setAccessibleName(node.getDisplayName());
    connect(this, &TabWidgetEx::si_addTab, this, &SettingPages::add);
    connect(this, &QTabWidget::tabCloseRequested, this, &SettingPages::close);
    auto* const closing = new QShortcut(QKeySequence(Qt::CTRL + Qt::Key_W), this);
    closing->setContext(Qt::WidgetWithChildrenShortcut);
    connect(closing, &QShortcut::activated, this, [this] { close(currentIndex()); });
    refresh();
}

void SettingPages::refresh()
{
    removeForeignPages();
    insertMissingPages();
    clearAddActions();
    for (const QString& name : m_node.addableSets())
        appendAddAction(JobXml::findParameterSet(name)->label(), false);
    const QStringList names = m_node.parameterSetNames();
    setReadOnly(m_node.isReadOnly());
    for (int i = 0; i < names.size(); ++i)
        setTabClosable(i, m_node.canDropSet(names[i]));
}

void SettingPages::add(const QString& label)
{
    for (const QString& name : m_node.addableSets()) {
        if (JobXml::findParameterSet(name)->label() != label)
            continue;
        m_node.addSet(name);
        setCurrentIndex(m_node.parameterSetNames().indexOf(name));
        return;
    }
}

void SettingPages::close(int index)
{
    const QString name = m_node.parameterSetNames().value(index);
    if (!m_node.isReadOnly() && m_node.canDropSet(name))
        m_node.setParameterSetText(name, QString());
}

void SettingPages::removeForeignPages()
{
    const QStringList names = m_node.parameterSetNames();
    for (int i = count() - 1; i >= 0; --i) {
        if (names.contains(widget(i)->objectName()))
            continue;
        QWidget* const page = widget(i);
        removeTab(i);
        // Its close button may be what is being told of right now.
        page->deleteLater();
    }
}

void SettingPages::insertMissingPages()
{
    const QStringList names = m_node.parameterSetNames();
    for (int i = 0; i < names.size(); ++i) {
        if (i < count() && widget(i)->objectName() == names[i])
            continue;
        insertTab(i, m_node.makePage(names[i], this), JobXml::findParameterSet(names[i])->label());
    }
}

} // namespace PluginKit
