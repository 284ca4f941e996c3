// The menus of the window, and what their entries do.

#include "editorwindow.h"

#include "aboutdialog.h"
#include "applydialog.h"
#include "editorpane.h"
#include "importdialog.h"
#include "mapcontrol.h"
#include "pagewindow.h"
#include "pluginpage.h"
#include "treepane.h"

#include <isubsetting.h>
#include <jedsubsettingfactory.h>
#include <jobxml/job.h>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QUrl>
#include <QWhatsThis>
#include <session/applysettings.h>
#include <session/installation.h>
#include <session/jobsession.h>
#include <session/jobsummary.h>
#include <session/listpreview.h>
#include <session/savefile.h>

using JEDVEPLUGIN::ISubSetting;
using JEDVEPLUGIN::JEDSubSettingFactory;
using Session::Finding;
using Session::JobSession;

void EditorWindow::buildFileMenu()
{
    QMenu* const menu = menuBar()->addMenu(tr("&File"));
    QMenu* const newMenu = menu->addMenu(tr("&New"));
    const QStringList types = JobXml::JobInformation::GetGUIJobTypes();
    for (int type = 0; type < types.size(); ++type)
        newMenu->addAction(types[type], this, [this, type] { newJob(static_cast<JEDVE::enJOB_TYPE>(type)); });
    menu->addAction(tr("&Open..."), this, &EditorWindow::open, QKeySequence::Open);
    QMenu* const recent = menu->addMenu(tr("Open &recent"));
    connect(recent, &QMenu::aboutToShow, this, [this, recent] { fillRecentMenu(recent); });
    menu->addAction(tr("Re&cover..."), this, [this] {
        if (!offerRecovery())
            QMessageBox::information(this, tr("Recover jobs"), tr("There is no job to be recovered."));
    });
    menu->addSeparator();
    m_readOnly = menu->addAction(tr("Read &only"), this, &EditorWindow::setReadOnly);
    m_readOnly->setCheckable(true);
    m_readOnly->setWhatsThis(tr("The job can be looked at but not changed"));
    m_jobActions << m_readOnly << menu->addAction(tr("&Save"), this, &EditorWindow::save, QKeySequence::Save)
                 << menu->addAction(tr("Save &as..."), this, &EditorWindow::saveAs, QKeySequence::SaveAs)
                 << menu->addAction(tr("Re&vert"), this, &EditorWindow::revert);
    menu->addSeparator();
    QAction* const summaryAction = menu->addAction(tr("Su&mmary..."), this, [this] {
        PageWindow(tr("Summary of the job"), summary(), tr("summary"), this).exec();
    });
    summaryAction->setObjectName(QStringLiteral("summaryAction"));
    m_jobActions << summaryAction
                 << menu->addAction(
                        tr("&Print..."), this, [this] { PageWindow::print(summary(), this); },
                        QKeySequence::Print);
    menu->addSeparator();
    menu->addAction(tr("&Quit"), this, &QWidget::close, QKeySequence(Qt::CTRL + Qt::Key_Q));
}

void EditorWindow::buildEditMenu()
{
    QMenu* const menu = menuBar()->addMenu(tr("&Edit"));
    m_undo = m_session->undoStack()->createUndoAction(this, tr("&Undo"));
    m_undo->setShortcut(QKeySequence::Undo);
    m_redo = m_session->undoStack()->createRedoAction(this, tr("&Redo"));
    m_redo->setShortcut(QKeySequence::Redo);
    menu->addActions({m_undo, m_redo});
    menu->addSeparator();

    m_settingMenu = menuBar()->addMenu(tr("&Setting"));
    QMenu* const add = m_settingMenu->addMenu(tr("&Add"));
    connect(add, &QMenu::aboutToShow, this, [this, add] { fillAddMenu(add); });
    m_changeActions << add->menuAction();
    m_settingActions
        << m_settingMenu->addAction(tr("&Duplicate"), this, &EditorWindow::duplicate,
                                    QKeySequence(Qt::CTRL + Qt::Key_D))
        << m_settingMenu->addAction(tr("De&lete"), this, &EditorWindow::removeCurrent,
                                    QKeySequence(Qt::CTRL + Qt::Key_Delete))
        << m_settingMenu->addAction(tr("Re&name"), m_tree, &TreePane::editName)
        << m_settingMenu->addAction(
               tr("Move &up"), this, [this] { moveCurrent(-1); }, QKeySequence(Qt::ALT + Qt::Key_Up))
        << m_settingMenu->addAction(
               tr("Move do&wn"), this, [this] { moveCurrent(1); }, QKeySequence(Qt::ALT + Qt::Key_Down))
        << m_settingMenu->addAction(tr("Appl&y these settings to..."), this, &EditorWindow::applyToOthers);
    m_settingActions.last()->setObjectName(QStringLiteral("applyAction"));
    m_changeActions << m_settingMenu->addAction(tr("&Import..."), this, &EditorWindow::importList,
                                                QKeySequence(Qt::CTRL + Qt::Key_I));
    m_tree->setRowMenu(m_settingMenu);

    // With a modifier of their own: the plain keys belong to the fields of the editors.
    m_settingActions << menu->addAction(tr("Cu&t setting"), this, &EditorWindow::cut,
                                        QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_X));
    m_copy = menu->addAction(tr("&Copy setting"), this, &EditorWindow::copy,
                             QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_C));
    m_changeActions << menu->addAction(tr("&Paste setting"), this, &EditorWindow::paste,
                                       QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_V));
    menu->addSeparator();
    m_jobActions << menu->addAction(tr("&Filter settings"), m_tree, &TreePane::focusFilter,
                                    QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_F));
}

void EditorWindow::buildViewMenu()
{
    QMenu* const menu = createPopupMenu();
    menu->setParent(menuBar(), menu->windowFlags());
    menu->setTitle(tr("&View"));
    menu->addSeparator();
    menu->addAction(m_map->action());
    menuBar()->addMenu(menu);
}

void EditorWindow::fillAddMenu(QMenu* menu)
{
    menu->clear();
    ISubSetting* const current = m_tree->currentSetting();
    if (JEDSubSettingFactory* const factory = m_session->factoryOf(current))
        addEntries(menu, factory, current);
    if (!menu->isEmpty())
        menu->addSeparator();
    for (JEDSubSettingFactory* factory : m_session->activeFactories())
        addEntries(menu, factory, nullptr);
    if (menu->isEmpty())
        menu->addAction(tr("Nothing can be added here"))->setEnabled(false);
}

void EditorWindow::addEntries(QMenu* menu, JEDSubSettingFactory* factory, ISubSetting* parent)
{
    for (const QString& type : m_session->addableTypes(factory, parent)) {
        const QString name = factory->settingDisplayName(type);
        const QPixmap* const pixmap = factory->getSettingIcon(type);
        menu->addAction(pixmap ? QIcon(*pixmap) : QIcon(),
                        parent ? name : tr("%1 (%2)").arg(name, factory->getName()), this,
                        [this, factory, type, parent] {
                            if (ISubSetting* const added = m_session->add(factory, type, parent, this))
                                m_tree->setCurrentSetting(added);
                        });
    }
}

void EditorWindow::fillRecentMenu(QMenu* menu)
{
    menu->clear();
    for (const QString& file : recentJobs())
        menu->addAction(QDir::toNativeSeparators(file), this, [this, file] { openFile(file); });
    if (menu->isEmpty())
        menu->addAction(tr("None yet"))->setEnabled(false);
}

bool EditorWindow::askToSave()
{
    m_session->flushEdits();
    if (!m_hasJob || !m_session->isModified())
        return true;
    const auto answer = QMessageBox::question(
        this, tr("Unsaved changes"), tr("The job has changes that are not saved. Save them?"),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

void EditorWindow::open()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Open a job"), QString(),
                                                      tr("Job files (*.xml);;All files (*)"));
    if (!path.isEmpty())
        openFile(path);
}

bool EditorWindow::save()
{
    const QString path = m_session->document().path();
    return path.isEmpty() ? saveAs() : saveTo(path);
}

bool EditorWindow::saveAs()
{
    const QString path = QFileDialog::getSaveFileName(this, tr("Save the job"), m_session->document().path(),
                                                      tr("Job files (*.xml);;All files (*)"));
    return !path.isEmpty() && saveTo(path);
}

void EditorWindow::revert()
{
    const QString path = m_session->document().path();
    if (path.isEmpty())
        return;
    const auto answer =
        QMessageBox::question(this, tr("Revert"), tr("Drop all changes since the job was saved?"),
                              QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    if (answer != QMessageBox::Yes)
        return;
    m_session->undoStack()->setClean();
    openFile(path);
}

QStringList EditorWindow::exampleJobs() const
{
    const QDir folder(Session::installationFolder() + QStringLiteral("/Jobs"));
    QStringList result;
    for (const QString& name : folder.entryList({QStringLiteral("*.xml")}, QDir::Files, QDir::Name))
        result.append(folder.absoluteFilePath(name));
    return result;
}

void EditorWindow::tell(const QString& title, const Session::Findings& findings)
{
    QStringList lines;
    bool isFailure = false;
    for (const Finding& finding : findings) {
        lines.append(finding.toText());
        isFailure = isFailure || finding.severity == Finding::FAILURE;
    }
    QMessageBox box(isFailure ? QMessageBox::Critical : QMessageBox::Warning, tr("Job editor"), title,
                    QMessageBox::Ok, this);
    box.setInformativeText(lines.mid(0, 5).join(QLatin1Char('\n')));
    if (lines.size() > 5)
        box.setDetailedText(lines.join(QLatin1Char('\n')));
    box.exec();
}

void EditorWindow::fileChanged()
{
    const QString path = m_session->document().path();
    if (!QFileInfo::exists(path))
        return;
    const auto answer = QMessageBox::question(this, tr("File changed"),
                                              tr("Another program changed %1. Open it again?").arg(path),
                                              QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    if (answer == QMessageBox::Yes) {
        m_session->undoStack()->setClean();
        openFile(path);
    } else {
        watchFile(path);
    }
}

void EditorWindow::cut()
{
    copy();
    removeCurrent();
}

void EditorWindow::copy()
{
    if (ISubSetting* const setting = m_tree->currentSetting())
        QApplication::clipboard()->setText(m_session->textOf(setting));
}

void EditorWindow::paste()
{
    const QString text = QApplication::clipboard()->text();
    ISubSetting* added = m_session->paste(text, m_tree->currentSetting());
    if (!added)
        added = m_session->paste(text, nullptr);
    if (added)
        m_tree->setCurrentSetting(added);
    else
        QMessageBox::information(this, tr("Paste"),
                                 tr("The clipboard holds no setting that can be pasted here."));
}

void EditorWindow::duplicate()
{
    if (ISubSetting* const setting = m_tree->currentSetting())
        m_tree->setCurrentSetting(m_session->duplicate(setting));
}

void EditorWindow::importList()
{
    ISubSetting* const target = Session::importTarget(*m_session, m_tree->currentSetting());
    if (!target) {
        QMessageBox::information(
            this, tr("Import"),
            tr("Choose the sub-job that is to have the frequencies of a list. It must have "
               "a tuner."));
        return;
    }
    ImportDialog dialog(m_session, target, this);
    if (dialog.exec() == QDialog::Accepted)
        m_tree->setCurrentSetting(target);
}

void EditorWindow::removeCurrent()
{
    if (ISubSetting* const setting = m_tree->currentSetting())
        m_session->remove(setting);
}

void EditorWindow::moveCurrent(int step)
{
    ISubSetting* const setting = m_tree->currentSetting();
    if (!setting)
        return;
    const int row = setting->parent() ? setting->row() : m_session->topLevelIndex(setting);
    if (m_session->move(setting->parent(), row, step < 0 ? row - 1 : row + 2))
        m_tree->setCurrentSetting(setting);
}

void EditorWindow::applyToOthers()
{
    ISubSetting* const source = m_tree->currentSetting();
    if (!source)
        return;
    m_session->flushEdits();
    if (Session::applicableSets(*source).isEmpty() ||
        Session::similarSettings(*m_session, source).isEmpty()) {
        QMessageBox::information(this, tr("Apply settings"),
                                 tr("There is no other setting that could take these settings over."));
        return;
    }
    ApplyDialog dialog(*m_session, source, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    QStringList names;
    for (ISubSetting* refused : Session::applySettings(m_session, source, dialog.sets(), dialog.targets()))
        names.append((refused->parent() ? refused->parent() : refused)->getDisplayName());
    if (!names.isEmpty())
        QMessageBox::information(this, tr("Apply settings"),
                                 tr("Not all of it could be applied to: %1").arg(names.join(tr(", "))));
}

void EditorWindow::buildHelpMenu()
{
    QMenu* const menu = menuBar()->addMenu(tr("&Help"));
    QMenu* const manuals = menu->addMenu(tr("&Manuals"));
    connect(manuals, &QMenu::aboutToShow, this, [this, manuals] { fillManualMenu(manuals); });
    menu->addAction(QWhatsThis::createAction(this));
    menu->addSeparator();
    menu->addAction(tr("&Plug-ins..."), this, [this] { PluginPage(*m_host, this).exec(); })
        ->setObjectName(QStringLiteral("pluginsAction"));
    menu->addAction(tr("&About..."), this, [this] { AboutDialog(*m_host, this).exec(); });
}

void EditorWindow::fillManualMenu(QMenu* menu)
{
    menu->clear();
    for (JEDSubSettingFactory* factory : m_session->factories()) {
        const QString manual = factory->manual();
        QAction* const action =
            menu->addAction(factory->getName(), this, [this, manual] { showManual(manual); });
        action->setEnabled(QFileInfo(manual).isFile());
        action->setToolTip(action->isEnabled() ? factory->description()
                           : manual.isEmpty()  ? tr("The plug-in has no manual")
                                               : tr("%1 is not in the installation").arg(manual));
    }
    if (menu->isEmpty())
        menu->addAction(tr("There are no plug-ins"))->setEnabled(false);
}

// Pages are shown here, other kinds of files by the program that is made for them.
void EditorWindow::showManual(const QString& file)
{
    QByteArray bytes;
    QString reason;
    if (!file.endsWith(QLatin1String(".html")))
        QDesktopServices::openUrl(QUrl::fromLocalFile(file));
    else if (Session::readFile(file, &bytes, &reason))
        PageWindow(tr("Manual"), QString::fromUtf8(bytes), QFileInfo(file).completeBaseName(), this).exec();
    else
        QMessageBox::warning(this, tr("Manual"), tr("%1 cannot be read: %2").arg(file, reason));
}

QString EditorWindow::summary() const
{
    return Session::jobSummary(*m_session, JEDVEPLUGIN::ResourceDescription::readAllResourceFiles());
}
