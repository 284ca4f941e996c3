#include "editorsetup.h"

#include <support/pseudotranslator.h>
#include <support/testmain.h>

#include <jobeditor/editorwindow.h>
#include <QAction>
#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSettings>
#include <quilappstartup/translationcenter.h>
#include <session/jobsession.h>
#include <session/pluginhost.h>

using JedTest::PseudoTranslator;

namespace {
// A menu and those below it.
void collectMenus(const QList<QAction*>& actions, QList<QList<QAction*>>* menus)
{
    menus->append(actions);
    for (const QAction* action : actions) {
        if (action->menu())
            collectMenus(action->menu()->actions(), menus);
    }
}

QChar mnemonic(const QString& text)
{
    const int position = text.indexOf('&');
    return position < 0 || position + 1 >= text.size() ? QChar() : text.at(position + 1).toLower();
}
} // namespace

class TstEditorLanguage : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanup();

    void everyTextIsTranslated();
    void germanWindow();
    void germanMenusHaveDifferentLetters();

private:
    void makeWindow();
    QList<QList<QAction*>> menus() const;

    PseudoTranslator m_pseudo;
    Session::PluginHost m_host;
    std::unique_ptr<Session::JobSession> m_session;
    std::unique_ptr<EditorWindow> m_window;
};

void TstEditorLanguage::initTestCase()
{
    JedTest::useEditorStation();
    TranslationCenter::Instance()->AddFolder(JED_BINARY_DIR "/lib/jobeditorve/translations");
}

void TstEditorLanguage::cleanup()
{
    m_window.reset();
    m_session.reset();
    QCoreApplication::removeTranslator(&m_pseudo);
    TranslationCenter::Instance()->SetLanguage(QString());
}

void TstEditorLanguage::makeWindow()
{
    m_session = std::make_unique<Session::JobSession>(m_host.factories());
    m_window = std::make_unique<EditorWindow>(&m_host, m_session.get());
}

QList<QList<QAction*>> TstEditorLanguage::menus() const
{
    QList<QList<QAction*>> result;
    collectMenus(m_window->menuBar()->actions(), &result);
    return result;
}

void TstEditorLanguage::everyTextIsTranslated()
{
    QCoreApplication::installTranslator(&m_pseudo);
    makeWindow();
    int count = 0;
    const QList<QList<QAction*>> all = menus();
    for (const QList<QAction*>& actions : all) {
        for (const QAction* action : actions) {
            if (action->isSeparator())
                continue;
            ++count;
            QVERIFY2(PseudoTranslator::isTranslated(action->text()), qPrintable(action->text()));
        }
    }
    QVERIFY(count > 20);
    for (const QDockWidget* dock : m_window->findChildren<QDockWidget*>())
        QVERIFY2(PseudoTranslator::isTranslated(dock->windowTitle()), qPrintable(dock->windowTitle()));
    QVERIFY(PseudoTranslator::isTranslated(m_window->windowTitle()));
}

void TstEditorLanguage::germanWindow()
{
    QVERIFY(TranslationCenter::Instance()->SetLanguage("de"));
    makeWindow();
    QStringList titles;
    for (const QAction* action : m_window->menuBar()->actions())
        titles << action->text().remove('&');
    QCOMPARE(titles, (QStringList{"Datei", "Bearbeiten", "Einstellung", "Ansicht", "Hilfe"}));
}

void TstEditorLanguage::germanMenusHaveDifferentLetters()
{
    QVERIFY(TranslationCenter::Instance()->SetLanguage("de"));
    makeWindow();
    const QList<QList<QAction*>> all = menus();
    for (const QList<QAction*>& actions : all) {
        QSet<QChar> letters;
        for (const QAction* action : actions) {
            const QChar letter = mnemonic(action->text());
            QVERIFY2(letter.isNull() || !letters.contains(letter), qPrintable(action->text()));
            letters.insert(letter);
        }
    }
}

JED_TEST_MAIN(TstEditorLanguage)
#include "tst_editorlanguage.moc"
