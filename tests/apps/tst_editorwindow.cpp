#include "editorsetup.h"

#include <support/accessiblenames.h>
#include <support/testmain.h>

#include <isubsetting.h>
#include <jedsubsettingfactory.h>
#include <jobeditor/editorwindow.h>
#include <jobeditor/pluginpage.h>
#include <QClipboard>
#include <QCommandLinkButton>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QScrollArea>
#include <QSettings>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeView>
#include <QTreeWidget>
#include <session/jobsession.h>
#include <session/pluginhost.h>
#include <session/savefile.h>

#include <functional>

using JEDVEPLUGIN::ISubSetting;
using Session::JobSession;
using Session::PluginHost;

namespace {
const QString EXAMPLES = JED_SOURCE_DIR "/installation/Jobs/";

QAction* findAction(const QList<QAction*>& actions, const QString& text)
{
    for (QAction* action : actions) {
        if (action->text().remove('&') == text)
            return action;
        if (action->menu()) {
            if (QAction* const found = findAction(action->menu()->actions(), text))
                return found;
        }
    }
    return nullptr;
}
} // namespace

class TstEditorWindow : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();

    void startPageOffersTheJobTypes();
    void newJobFromTheStartPage();
    void exampleIsShown_data() { examples(); }
    void exampleIsShown();
    void unreadableFileIsTold();
    void settingIsDeletedAndUndone();
    void settingIsCopiedAndPasted();
    void settingIsMovedByKeyboard();
    void readOnlyJobIsShownOnly();
    void titleShowsChanges();
    void jobIsSaved();
    void closingAsks_data();
    void closingAsks();
    void filterHidesSettings();
    void pluginPageListsTheFiles();
    void everyControlHasAName_data() { examples(); }
    void everyControlHasAName();

private:
    void examples();
    QAction* action(const QString& text) { return findAction(m_window->menuBar()->actions(), text); }
    QTreeView* tree() { return m_window->findChild<QTreeView*>("settingTree"); }
    // A job with sub-jobs that no plug-in claims says so in a box.
    bool open(const QString& name);
    // Answers the next message box.
    void answer(QMessageBox::StandardButton button);

    PluginHost m_host;
    std::unique_ptr<JobSession> m_session;
    std::unique_ptr<EditorWindow> m_window;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_told; // By the last message box.
};

void TstEditorWindow::initTestCase()
{
    JedTest::useEditorStation();
    m_host.load(PluginHost::defaultFolders());
}

void TstEditorWindow::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder->path());
    m_session = std::make_unique<JobSession>(m_host.factories());
    m_window = std::make_unique<EditorWindow>(&m_host, m_session.get());
    m_window->show();
}

void TstEditorWindow::cleanup()
{
    m_window.reset();
    m_session.reset();
}

void TstEditorWindow::examples()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"dfscan", "measurement", "production", "search", "surveillance"})
        QTest::newRow(name) << QString(name);
}

void TstEditorWindow::answer(QMessageBox::StandardButton button)
{
    m_told.clear();
    auto* const timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, [this, timer, button] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        timer->deleteLater();
        m_told = box->text();
        box->button(button)->click();
    });
    timer->start(10);
}

bool TstEditorWindow::open(const QString& name)
{
    QTimer closer;
    connect(&closer, &QTimer::timeout, this, [] {
        if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            box->button(QMessageBox::Ok)->click();
    });
    closer.start(10);
    return m_window->openFile(EXAMPLES + name + ".xml");
}

void TstEditorWindow::startPageOffersTheJobTypes()
{
    QStringList texts;
    for (const QCommandLinkButton* button : m_window->findChildren<QCommandLinkButton*>())
        texts.append(button->text());
    for (const QString& type : JobXml::JobInformation::GetGUIJobTypes())
        QVERIFY2(texts.contains(type), qPrintable(type));
    QVERIFY(texts.contains("search"));
    QVERIFY(!action("Save")->isEnabled());
}

void TstEditorWindow::newJobFromTheStartPage()
{
    for (QCommandLinkButton* button : m_window->findChildren<QCommandLinkButton*>()) {
        if (button->text() == JobXml::JobInformation::GetGUIJobTypes().at(1))
            QTest::keyClick(button, Qt::Key_Space);
    }
    QCOMPARE(int(m_session->jobType()), 1);
    QVERIFY(tree()->isVisible());
    QVERIFY(action("Save")->isEnabled());
    QVERIFY(!action("Delete")->isEnabled());
}

void TstEditorWindow::exampleIsShown()
{
    QFETCH(QString, name);
    QVERIFY(open(name));
    QCOMPARE(tree()->model()->rowCount(), m_session->topLevelCount());
    QVERIFY(m_window->windowTitle().startsWith(name));
    QVERIFY(!m_window->isWindowModified());
}

void TstEditorWindow::unreadableFileIsTold()
{
    answer(QMessageBox::Ok);
    QVERIFY(!m_window->openFile(m_folder->filePath("missing.xml")));
    QCOMPARE(m_told, QString("The job could not be opened."));
}

void TstEditorWindow::settingIsDeletedAndUndone()
{
    QVERIFY(open("search"));
    const int count = m_session->topLevelCount();
    action("Delete")->trigger();
    QCOMPARE(tree()->model()->rowCount(), count - 1);
    for (QAction* undo : m_window->menuBar()->findChildren<QAction*>()) {
        if (undo->text().startsWith("&Undo"))
            undo->trigger();
    }
    m_session->undoStack()->setIndex(0);
    QCOMPARE(tree()->model()->rowCount(), count);
}

void TstEditorWindow::settingIsCopiedAndPasted()
{
    QVERIFY(open("search"));
    const int count = m_session->topLevelCount();
    action("Copy setting")->trigger();
    action("Paste setting")->trigger();
    QCOMPARE(m_session->topLevelCount(), count + 1);
    action("Duplicate")->trigger();
    QCOMPARE(m_session->topLevelCount(), count + 2);
    QApplication::clipboard()->setText("rubbish");
    answer(QMessageBox::Ok);
    action("Paste setting")->trigger();
    QVERIFY(!m_told.isEmpty());
}

void TstEditorWindow::settingIsMovedByKeyboard()
{
    QVERIFY(open("search"));
    action("Duplicate")->trigger();
    ISubSetting* const setting = m_session->settingAt({0});
    m_window->setCurrentSetting(setting);
    action("Move down")->trigger();
    QCOMPARE(m_session->topLevelIndex(setting), 1);
    action("Move up")->trigger();
    QCOMPARE(m_session->topLevelIndex(setting), 0);
}

void TstEditorWindow::readOnlyJobIsShownOnly()
{
    QVERIFY(open("search"));
    action("Duplicate")->trigger();
    action("Read only")->trigger();
    QVERIFY(m_window->windowTitle().contains("(read only)"));
    for (const char* change : {"Delete", "Duplicate", "Paste setting", "Add"})
        QVERIFY2(!action(change)->isEnabled(), change);
    QVERIFY(!action("Undo Duplicate " + m_session->settingAt({0})->getDisplayName())->isEnabled());
    QVERIFY(action("Copy setting")->isEnabled());
    QVERIFY(action("Save as...")->isEnabled());

    // Its pages can be leafed through and scrolled, their fields cannot be edited.
    auto* const tabs = qobject_cast<QTabWidget*>(m_session->settingAt({0, 0})->getWidget());
    QVERIFY(tabs);
    QVERIFY(tabs->isEnabled());
    auto* const area = qobject_cast<QScrollArea*>(tabs->widget(0));
    QVERIFY(area);
    QVERIFY(area->isEnabled());
    QVERIFY(!area->widget()->isEnabled());

    action("Read only")->trigger();
    QVERIFY(area->widget()->isEnabled());
    QVERIFY(action("Delete")->isEnabled());
}

void TstEditorWindow::titleShowsChanges()
{
    QVERIFY(open("search"));
    QVERIFY(m_session->rename(m_session->settingAt({0}), "Renamed"));
    QVERIFY(m_window->isWindowModified());
    m_session->undoStack()->undo();
    QVERIFY(!m_window->isWindowModified());
}

void TstEditorWindow::jobIsSaved()
{
    const QString path = m_folder->filePath("job.xml");
    QVERIFY(QFile::copy(EXAMPLES + "search.xml", path));
    QFile(path).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    QVERIFY(m_window->openFile(path));
    QVERIFY(m_session->rename(m_session->settingAt({0}), "Renamed"));
    action("Save")->trigger();
    QVERIFY(!m_window->isWindowModified());
    QByteArray bytes;
    QVERIFY(Session::readFile(path, &bytes, nullptr));
    QVERIFY(bytes.contains("Renamed"));
}

void TstEditorWindow::closingAsks_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("isClosed");
    QTest::newRow("cancel") << int(QMessageBox::Cancel) << false;
    QTest::newRow("discard") << int(QMessageBox::Discard) << true;
}

void TstEditorWindow::closingAsks()
{
    QFETCH(int, button);
    QFETCH(bool, isClosed);
    QVERIFY(open("search"));
    QVERIFY(m_session->rename(m_session->settingAt({0}), "Renamed"));
    answer(static_cast<QMessageBox::StandardButton>(button));
    QCOMPARE(m_window->close(), isClosed);
    QVERIFY(!m_told.isEmpty());
}

void TstEditorWindow::filterHidesSettings()
{
    QVERIFY(open("search"));
    auto* const filter = m_window->findChild<QLineEdit*>("settingFilter");
    const int count = tree()->model()->rowCount();
    filter->setText("no setting is called like this");
    QCOMPARE(tree()->model()->rowCount(), 0);
    filter->clear();
    QCOMPARE(tree()->model()->rowCount(), count);
    // The field fades its button out; it frees what it needs for that at the end only.
    QTest::qWait(400);
}

void TstEditorWindow::pluginPageListsTheFiles()
{
    PluginPage page(m_host);
    QCOMPARE(page.findChild<QTreeWidget*>()->topLevelItemCount(), int(m_host.plugins().size()));
}

void TstEditorWindow::everyControlHasAName()
{
    QFETCH(QString, name);
    QVERIFY(open(name));
    const std::function<void(ISubSetting*)> visit = [this, &visit](ISubSetting* setting) {
        m_window->setCurrentSetting(setting);
        const QStringList nameless = JedTest::namelessControls(m_window.get());
        QVERIFY2(nameless.isEmpty(), qPrintable(setting->getDisplayName() + ": " + nameless.join(", ")));
        QCOMPARE(JedTest::strayLabels(setting->getWidget()).join("; "), QString());
        QCOMPARE(JedTest::tabJumps(setting->getWidget()).join("; "), QString());
        for (int row = 0; row < setting->childCount(); ++row)
            visit(setting->child(row));
    };
    for (int i = 0; i < m_session->topLevelCount(); ++i) {
        if (ISubSetting* const setting = m_session->settingAt({i}))
            visit(setting);
    }
}

JED_TEST_MAIN(TstEditorWindow)
#include "tst_editorwindow.moc"
