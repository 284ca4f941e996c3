#include "editorsetup.h"

#include <support/testmain.h>

#include <isubsetting.h>
#include <jedsubsettingfactory.h>
#include <jobeditor/editorwindow.h>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeView>
#include <resourceselectiondialog.h>
#include <session/jobdocument.h>
#include <session/jobsession.h>
#include <session/pluginhost.h>

#include <functional>

using JEDVEPLUGIN::ISubSetting;
using Session::JobSession;
using Session::PluginHost;

// A person with a keyboard and no mouse: each key goes to what has the focus, nothing is called by name.
class TstEditorKeyboard : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void jobIsMadeAndSaved_data();
    void jobIsMadeAndSaved();

private:
    static QWidget* target();
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    static void type(const QString& text);
    // Goes on with Tab until the focus is on what is looked for; false when it came round.
    static bool tabTo(const std::function<bool(QWidget*)>& isWanted);
    // Goes down in the open menu to the entry that begins like this, and takes it.
    static bool takeEntry(const QString& text);
    // What a person does when a window comes up that waits for an answer.
    void whenAsked(const std::function<void()>& action);

    static void chooseReceiver(const QString& receiver);
    static void editField(const QString& field, const QString& text);

    PluginHost m_host;
    static EditorWindow* s_window;
};

EditorWindow* TstEditorKeyboard::s_window = nullptr;

void TstEditorKeyboard::initTestCase()
{
    JedTest::useEditorStation();
    m_host.load(PluginHost::defaultFolders());
}

QWidget* TstEditorKeyboard::target()
{
    const auto holder = [] {
        QWidget* const popup = QApplication::activePopupWidget();
        return popup ? popup : QApplication::focusWidget();
    };
    // There is no window manager that gives a window the focus back when its dialog has gone.
    if (!holder() && !QApplication::activeModalWidget())
        QApplication::setActiveWindow(s_window);
    if (!QTest::qWaitFor([&holder] { return holder() != nullptr; }))
        qFatal("nothing has the focus");
    return holder();
}

void TstEditorKeyboard::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(target(), key, modifiers);
}

void TstEditorKeyboard::type(const QString& text)
{
    QTest::keyClicks(target(), text);
}

bool TstEditorKeyboard::tabTo(const std::function<bool(QWidget*)>& isWanted)
{
    QWidget* const first = target();
    while (!isWanted(target())) {
        // Lists take Tab for themselves only with items to edit; Control+Tab is theirs, Tab is the window's.
        press(Qt::Key_Tab);
        if (target() == first)
            return false;
    }
    return true;
}

bool TstEditorKeyboard::takeEntry(const QString& text)
{
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu)
        return false;
    const auto isWanted = [menu, &text] {
        return menu->activeAction() && menu->activeAction()->text().remove('&').startsWith(text);
    };
    for (int i = 0; i <= menu->actions().size() && !isWanted(); ++i)
        press(Qt::Key_Down);
    if (!isWanted())
        return false;
    press(menu->activeAction()->menu() ? Qt::Key_Right : Qt::Key_Return);
    return true;
}

void TstEditorKeyboard::whenAsked(const std::function<void()>& action)
{
    auto* const timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, [timer, action] {
        const QWidget* const asking = QApplication::activeModalWidget();
        if (!asking || !asking->isActiveWindow() || !QApplication::focusWidget())
            return;
        timer->stop();
        timer->deleteLater();
        const QPointer<QWidget> window = QApplication::activeModalWidget();
        action();
        // A test that failed in there is to end all the same.
        if (window && window == QApplication::activeModalWidget())
            window->close();
    });
    timer->start(10);
}

void TstEditorKeyboard::chooseReceiver(const QString& receiver)
{
    QVERIFY(qobject_cast<JEDVEPLUGIN::ResourceSelectionDialog*>(QApplication::activeModalWidget()));
    QVERIFY(tabTo([](QWidget* widget) { return widget->objectName() == "ResourceSelection_TunerType"; }));
    type(receiver);
    QCOMPARE(static_cast<QComboBox*>(target())->currentText(), receiver);
    press(Qt::Key_Return);
}

void TstEditorKeyboard::editField(const QString& field, const QString& text)
{
    QVERIFY(tabTo([&field](QWidget* widget) {
        return widget->objectName().endsWith('/' + field) ||
               (widget->parentWidget() && widget->parentWidget()->objectName().endsWith('/' + field));
    }));
    press(Qt::Key_A, Qt::ControlModifier);
    type(text);
    press(Qt::Key_Return);
}

void TstEditorKeyboard::jobIsMadeAndSaved_data()
{
    QTest::addColumn<int>("jobType");
    QTest::addColumn<QString>("plugin");
    QTest::addColumn<QString>("receiver");
    QTest::addColumn<QString>("setting");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("DF scan") << int(JEDVE::JOB_TYPE_DF_SCAN) << "DFScan"
                             << "DirectionFinder"
                             << "Scan"
                             << "Range.Name"
                             << "Coast" << QByteArray("Coast");
    QTest::newRow("search") << int(JEDVE::JOB_TYPE_SEARCH) << "Search"
                            << "TRV9KScanSettings"
                            << "Scan"
                            << "Range.Name"
                            << "Airband" << QByteArray("Airband");
    QTest::newRow("surveillance") << int(JEDVE::JOB_TYPE_SURVEILLANCE) << "Search"
                                  << "HT720"
                                  << "Tuner"
                                  << "ChannelName"
                                  << "Distress" << QByteArray("Distress");
    QTest::newRow("production") << int(JEDVE::JOB_TYPE_PRODUCTION) << "Production"
                                << "HT720"
                                << "Tuner"
                                << "ChannelName"
                                << "Weather" << QByteArray("Weather");
    QTest::newRow("measurement") << int(JEDVE::JOB_TYPE_MEASUREMENT) << "DFScan"
                                 << "TRV9KScanSettings"
                                 << "Scan"
                                 << "Range.Name"
                                 << "Band" << QByteArray("Band");
}

void TstEditorKeyboard::jobIsMadeAndSaved()
{
    QFETCH(int, jobType);
    QFETCH(QString, plugin);
    QFETCH(QString, receiver);
    QFETCH(QString, setting);
    QFETCH(QString, field);
    QFETCH(QString, typed);
    QFETCH(QByteArray, written);
    const QTemporaryDir folder;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
    JobSession session(m_host.factories());
    EditorWindow window(&m_host, &session);
    s_window = &window;
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));

    const QString typeName = JobXml::JobInformation::GetGUIJobTypes().value(jobType);
    QVERIFY(tabTo([&typeName](QWidget* widget) { return widget->property("text").toString() == typeName; }));
    press(Qt::Key_Space);
    QCOMPARE(int(session.jobType()), jobType);

    press(Qt::Key_S, Qt::AltModifier);
    QVERIFY(takeEntry("Add"));
    bool isChosen = false;
    whenAsked([&receiver, &isChosen] {
        chooseReceiver(receiver);
        isChosen = true;
    });
    const QString subjobEntry = session.activeFactories().first()->settingDisplayName("SubJob");
    QVERIFY(takeEntry(subjobEntry));
    QTRY_VERIFY(isChosen);
    QCOMPARE(session.topLevelCount(), 1);
    QCOMPARE(session.activeFactories().first()->getName(), plugin);

    QVERIFY(tabTo([](QWidget* widget) { return widget->objectName() == "settingTree"; }));
    type(setting);
    QCOMPARE(static_cast<QTreeView*>(target())->currentIndex().data().toString(), setting);
    editField(field, typed);

    const QString path = folder.filePath("job.xml");
    bool isNamed = false;
    whenAsked([&path, &isNamed] {
        QVERIFY(qobject_cast<QFileDialog*>(QApplication::activeModalWidget()));
        type(path);
        // Suggestions come when the folder has been read; they have to go before the name is taken.
        const QPointer<QWidget> dialog = QApplication::activeModalWidget();
        for (int i = 0; i < 10 && dialog && dialog->isVisible(); ++i)
            press(QApplication::activePopupWidget() ? Qt::Key_Escape : Qt::Key_Return);
        isNamed = true;
    });
    press(Qt::Key_S, Qt::ControlModifier);
    QTRY_VERIFY(isNamed);
    QVERIFY(!window.isWindowModified());
    QFile file(path);
    QVERIFY(file.open(QFile::ReadOnly));
    QVERIFY(file.readAll().contains(written));
    press(Qt::Key_Q, Qt::ControlModifier);
    QTRY_VERIFY(!window.isVisible());
}

JED_TEST_MAIN(TstEditorKeyboard)
#include "tst_editorkeyboard.moc"
