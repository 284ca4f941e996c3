#include "aboutdialog.h"

#include <jedabstractsubsettingfactory.h>
#include <jedvepb_version.h>
#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLibraryInfo>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <session/installation.h>
#include <session/pluginhost.h>

#if defined(Q_OS_UNIX)
#include <dlfcn.h>
#endif

namespace {
// The file that a function was loaded from; empty where the system does not tell.
QString fileOf(const void* function)
{
#if defined(Q_OS_UNIX)
    Dl_info info;
    if (dladdr(function, &info) && info.dli_fname)
        return QDir::cleanPath(QFileInfo(QFile::decodeName(info.dli_fname)).absoluteFilePath());
#else
    Q_UNUSED(function)
#endif
    return QString();
}

template <typename Function>
QString fileOfFunction(Function* function)
{
    return fileOf(reinterpret_cast<const void*>(function));
}
} // namespace

AboutDialog::AboutDialog(const Session::PluginHost& host, QWidget* parent)
    : QDialog(parent)
    , m_list(new QTreeWidget(this))
{
    setWindowTitle(tr("About the job editor"));
    resize(720, 360);
    m_list->setAccessibleName(tr("Versions and places"));
    m_list->setRootIsDecorated(false);
    m_list->setHeaderLabels({tr("What"), tr("Version"), tr("Loaded from")});
    const auto add = [this](const QString& what, const QString& version, const QString& place) {
        auto* const item = new QTreeWidgetItem(m_list, {what, version, QDir::toNativeSeparators(place)});
        item->setToolTip(2, item->text(2));
    };
    add(tr("Job editor"), QApplication::applicationVersion(), QApplication::applicationFilePath());
    add(tr("Library, interface"), QString::number(JEDVEPLUGIN::interfaceVersion()),
        fileOfFunction(&JEDVEPLUGIN::interfaceVersion));
    add(tr("Qt"), QLatin1String(qVersion()), fileOfFunction(&qVersion));
    for (const Session::PluginHost::Plugin& plugin : host.plugins()) {
        if (plugin.factory)
            add(tr("Plug-in %1").arg(plugin.factory->getName()),
                QString::number(plugin.report.interfaceVersion), plugin.report.path);
    }
    add(tr("Installation"), QString(), Session::installationFolder());
    add(tr("Receivers"), QString(), Session::templateFolder());
    m_list->resizeColumnToContents(0);
    m_list->resizeColumnToContents(1);

    auto* const purpose =
        new QLabel(tr("Composes jobs for radio monitoring out of the settings of plug-ins."), this);
    purpose->setWordWrap(true);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    auto* const copy = buttons->addButton(tr("&Copy as text"), QDialogButtonBox::ActionRole);
    connect(copy, &QPushButton::clicked, this, [this] { QApplication::clipboard()->setText(toText()); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(purpose);
    layout->addWidget(m_list);
    layout->addWidget(buttons);
}

QString AboutDialog::toText() const
{
    QString text;
    for (int row = 0; row < m_list->topLevelItemCount(); ++row) {
        const QTreeWidgetItem* const item = m_list->topLevelItem(row);
        text += QStringLiteral("%1 %2 %3").arg(item->text(0), item->text(1), item->text(2)).simplified() +
                QLatin1Char('\n');
    }
    return text;
}
