#include "editorsetup.h"

#include <support/accessiblenames.h>
#include <support/testmain.h>

#include <isubsetting.h>
#include <jobeditor/editorwindow.h>
#include <jobeditor/importdialog.h>
#include <jobeditor/importmodel.h>
#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeView>
#include <session/pluginhost.h>
#include <session/savefile.h>

using Session::JobSession;

namespace {
const QString INSTALLATION = JED_SOURCE_DIR "/installation";
const QString BOOKMARKS = INSTALLATION + "/FrequencyLists/coast-bookmarks.csv";
} // namespace

class TstImportDialog : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();

    void entriesAreShownBeforeAnythingIsDone();
    void entriesAreLeftOutWithTheKeyboard();
    void formatIsChanged();
    void longListIsStopped();
    void pluginThatTakesLessSaysSo();
    void everyControlHasAName();
    void windowImportsInOneStep();
    void windowAsksForASubjob();
    void modelIsAModel();

private:
    JobSession::Setting* target() const { return m_session->settingAt({0}); }
    template <typename Widget>
    static Widget* find(const QWidget& dialog, const char* name);
    QAction* importAction() const;

    Session::PluginHost m_host;
    std::unique_ptr<JobSession> m_session;
    std::unique_ptr<EditorWindow> m_window;
    std::unique_ptr<QTemporaryDir> m_folder;
};

void TstImportDialog::initTestCase()
{
    JedTest::useEditorStation();
    m_host.load(Session::PluginHost::defaultFolders());
}

void TstImportDialog::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder->path());
    m_session = std::make_unique<JobSession>(m_host.factories());
    m_window = std::make_unique<EditorWindow>(&m_host, m_session.get());
    m_window->show();
    QVERIFY(m_window->openFile(INSTALLATION + "/Jobs/production.xml"));
    QCOMPARE(m_session->topLevelCount(), 2);
}

void TstImportDialog::cleanup()
{
    m_window.reset();
    m_session.reset();
}

template <typename Widget>
Widget* TstImportDialog::find(const QWidget& dialog, const char* name)
{
    auto* const found = dialog.findChild<Widget*>(QLatin1String(name));
    if (!found)
        qFatal("no %s", name);
    return found;
}

QAction* TstImportDialog::importAction() const
{
    for (QAction* action : m_window->findChildren<QAction*>()) {
        if (action->text() == "&Import...")
            return action;
    }
    return nullptr;
}

void TstImportDialog::entriesAreShownBeforeAnythingIsDone()
{
    const QByteArray before = m_session->draft();
    ImportDialog dialog(m_session.get(), target(), m_window.get());
    dialog.show();
    auto* const button = find<QPushButton>(dialog, "importButton");
    QVERIFY(!button->isEnabled());
    QCOMPARE(find<QLabel>(dialog, "importSummary")->text(), QString("Choose a list of frequencies."));
    dialog.readFile(BOOKMARKS);
    QCOMPARE(find<QComboBox>(dialog, "importFormat")->currentData().toString(), QString("gqrx"));
    const QAbstractItemModel* const model = find<QTableView>(dialog, "importTable")->model();
    QCOMPARE(model->rowCount(), 6);
    QCOMPARE(model->index(3, ImportModel::NAME).data().toString(), QString("Vellin pilots"));
    QCOMPARE(model->index(3, ImportModel::BECOMES).data().toString(),
             QString("161.45 MHz, FM, 12.5 kHz (usual)"));
    QVERIFY(!model->index(5, ImportModel::LINE).data(Qt::CheckStateRole).isValid());
    QCOMPARE(find<QLabel>(dialog, "importSummary")->text(),
             QString("Entries to be imported: 5, refused: 1\n"
                     "Left out, since there is no place for it: list of tags, Tags"));
    QVERIFY(button->isEnabled());
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(m_session->draft(), before);
}

void TstImportDialog::entriesAreLeftOutWithTheKeyboard()
{
    ImportDialog dialog(m_session.get(), target(), m_window.get());
    dialog.show();
    dialog.readFile(BOOKMARKS);
    auto* const table = find<QTableView>(dialog, "importTable");
    for (const int row : {1, 4}) {
        table->setCurrentIndex(table->model()->index(row, ImportModel::LINE));
        QTest::keyClick(table, Qt::Key_Space);
    }
    table->setCurrentIndex(
        table->model()->index(5, ImportModel::LINE)); // Refused: there is nothing to choose.
    QTest::keyClick(table, Qt::Key_Space);
    QVERIFY(
        find<QLabel>(dialog, "importSummary")->text().startsWith("Entries to be imported: 3, refused: 1"));
    QTest::keyClick(&dialog, Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.made().size(), 2);
    QCOMPARE(target()->getDisplayName(), QString("Skarholm Radio 16"));
    QCOMPARE(dialog.made().at(0)->getDisplayName(), QString("Vellin port control"));
    QCOMPARE(dialog.made().at(1)->getDisplayName(), QString("Vellin pilots"));
}

void TstImportDialog::formatIsChanged()
{
    ImportDialog dialog(m_session.get(), target(), m_window.get());
    dialog.show();
    dialog.readFile(BOOKMARKS);
    auto* const format = find<QComboBox>(dialog, "importFormat");
    format->setFocus();
    QTest::keyClick(format, Qt::Key_Down);
    QCOMPARE(format->currentData().toString(), QString("sdrsharp"));
    QVERIFY(find<QLabel>(dialog, "importSummary")->text().startsWith("The list is refused: line 1: "));
    QCOMPARE(find<QTableView>(dialog, "importTable")->model()->rowCount(), 0);
    QVERIFY(!find<QPushButton>(dialog, "importButton")->isEnabled());
    QTest::keyClick(format, Qt::Key_Up);
    QVERIFY(find<QPushButton>(dialog, "importButton")->isEnabled());
}

void TstImportDialog::longListIsStopped()
{
    QByteArray text = "Name,Frequency,Mode\n";
    for (int i = 0; i < 50000; ++i)
        text += "Station,156." + QByteArray::number(100000 + i) + ",FM\n";
    const QString path = m_folder->filePath("long.csv");
    QVERIFY(Session::saveFile(path, text, nullptr));
    ImportDialog dialog(m_session.get(), target(), m_window.get());
    dialog.show();
    QTimer stopper;
    QString shownWhileReading;
    connect(&stopper, &QTimer::timeout, this, [&dialog, &stopper, &shownWhileReading] {
        stopper.stop();
        for (auto* button : dialog.findChildren<QPushButton*>()) {
            if (button->text() == "&Stop") {
                shownWhileReading = button->text();
                QTest::keyClick(button, Qt::Key_Space);
            }
        }
    });
    stopper.start(0);
    dialog.readFile(path);
    QCOMPARE(shownWhileReading, QString("&Stop"));
    QVERIFY(dialog.isVisible());
    QCOMPARE(find<QLabel>(dialog, "importSummary")->text(),
             QString("The list is refused: reading was stopped"));
    dialog.readFile(path);
    QVERIFY(find<QLabel>(dialog, "importSummary")->text().startsWith("Entries to be imported: 50000, "));
}

void TstImportDialog::pluginThatTakesLessSaysSo()
{
    QByteArray text = "Name,Frequency,Mode\n";
    for (int i = 0; i < 1001; ++i)
        text += "Station,156." + QByteArray::number(100000 + i) + ",FM\n";
    const QString path = m_folder->filePath("long.csv");
    QVERIFY(Session::saveFile(path, text, nullptr));
    ImportDialog dialog(m_session.get(), target(), m_window.get());
    dialog.readFile(path);
    QString told;
    QTimer closer;
    connect(&closer, &QTimer::timeout, this, [&told] {
        if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            told = box->text();
            box->button(QMessageBox::Ok)->click();
        }
    });
    closer.start(10);
    dialog.accept();
    QCOMPARE(told, QString("The plug-in took 1000 of 1001 entries."));
    QCOMPARE(m_session->topLevelCount(), 1001);
}

void TstImportDialog::everyControlHasAName()
{
    ImportDialog dialog(m_session.get(), target(), m_window.get());
    dialog.show();
    dialog.readFile(BOOKMARKS);
    QCOMPARE(JedTest::namelessControls(&dialog), QStringList());
}

void TstImportDialog::windowImportsInOneStep()
{
    const QByteArray before = m_session->draft();
    m_window->setCurrentSetting(m_session->settingAt({0, 0}));
    QVERIFY(importAction() && importAction()->isEnabled());
    QTimer::singleShot(0, this, [] {
        auto* const dialog = qobject_cast<ImportDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            qFatal("no dialog");
        dialog->readFile(BOOKMARKS);
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    importAction()->trigger();
    auto* const tree = m_window->findChild<QTreeView*>("settingTree");
    QCOMPARE(m_session->topLevelCount(), 6);
    QCOMPARE(tree->model()->rowCount(), 6);
    QCOMPARE(tree->model()->index(0, 0).data().toString(), QString("Skarholm Radio 16"));
    QCOMPARE(tree->currentIndex().data().toString(), QString("Skarholm Radio 16"));
    m_session->undoStack()->undo();
    QCOMPARE(m_session->draft(), before);
    QCOMPARE(tree->model()->index(0, 0).data().toString(), QString("Channel 16"));
    QVERIFY(!m_session->isModified());
}

void TstImportDialog::windowAsksForASubjob()
{
    m_window->setCurrentSetting(nullptr);
    QString told;
    QTimer::singleShot(10, this, [&told] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        told = box ? box->text() : QString();
        if (box)
            box->button(QMessageBox::Ok)->click();
    });
    importAction()->trigger();
    QVERIFY(told.startsWith("Choose the sub-job"));
}

void TstImportDialog::modelIsAModel()
{
    ImportModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QSignalSpy choice(&model, &ImportModel::choiceChanged);
    model.setPreview(Session::previewList(BOOKMARKS, "gqrx"));
    QCOMPARE(choice.count(), 1);
    QCOMPARE(model.chosenEntries(), QVector<int>({0, 1, 2, 3, 4}));
    QVERIFY(model.setData(model.index(2, 0), Qt::Unchecked, Qt::CheckStateRole));
    QVERIFY(!model.setData(model.index(5, 0), Qt::Checked, Qt::CheckStateRole));
    QVERIFY(!model.setData(model.index(1, 1), Qt::Unchecked, Qt::CheckStateRole));
    QVERIFY(!model.setData(model.index(1, 1), "Other", Qt::EditRole));
    QCOMPARE(choice.count(), 2);
    QCOMPARE(model.chosenEntries(), QVector<int>({0, 1, 3, 4}));
    QCOMPARE(model.refusedCount(), 1);
    model.setPreview(Session::ListPreview());
    QCOMPARE(model.rowCount(), 0);
    QVERIFY(model.chosenEntries().isEmpty());
}

JED_TEST_MAIN(TstImportDialog)
#include "tst_importdialog.moc"
