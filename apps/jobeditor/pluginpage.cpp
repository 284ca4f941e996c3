#include "pluginpage.h"

#include <jedabstractsubsettingfactory.h>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <session/pluginhost.h>

using Session::PluginHost;

namespace {
enum Column { COLUMN_FILE, COLUMN_PLUGIN, COLUMN_VERSION, COLUMN_VERDICT };

void addRow(const PluginHost::Plugin& plugin, QTreeWidget* list)
{
    const LibraryReport& report = plugin.report;
    const QString name =
        plugin.factory ? plugin.factory->getName() : report.metaData.value(QLatin1String("name")).toString();
    auto* const item = new QTreeWidgetItem(
        list,
        {QFileInfo(report.path).fileName(), name, QString::number(report.interfaceVersion),
         plugin.factory ? PluginPage::tr("In use: %1").arg(plugin.factory->description()) : report.text});
    item->setIcon(COLUMN_FILE, list->style()->standardIcon(plugin.factory ? QStyle::SP_DialogApplyButton
                                                                          : QStyle::SP_MessageBoxWarning));
    item->setToolTip(COLUMN_FILE, QDir::toNativeSeparators(report.path));
    item->setToolTip(COLUMN_VERDICT, item->text(COLUMN_VERDICT));
}
} // namespace

PluginPage::PluginPage(const PluginHost& host, QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Plug-ins"));
    resize(720, 320);
    auto* const list = new QTreeWidget(this);
    list->setAccessibleName(tr("Files in the plug-in folders"));
    list->setRootIsDecorated(false);
    list->setWordWrap(true);
    list->setHeaderLabels({tr("File"), tr("Plug-in"), tr("Interface"), tr("Verdict")});
    for (const PluginHost::Plugin& plugin : host.plugins())
        addRow(plugin, list);
    for (int column = COLUMN_FILE; column < COLUMN_VERDICT; ++column)
        list->resizeColumnToContents(column);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(list);
    layout->addWidget(buttons);
}
