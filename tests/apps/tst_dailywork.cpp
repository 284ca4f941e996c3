#include <support/testmain.h>

#include <isubsetting.h>
#include <jobeditor/applydialog.h>
#include <jobeditor/editorwindow.h>
#include <jobeditor/tableediting.h>
#include <kit/settingnode.h>
#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTreeView>
#include <session/applysettings.h>
#include <session/installation.h>
#include <session/pluginhost.h>
#include <support/accessiblenames.h>
#include <support/listviewsamples.h>
#include <values/node.h>
#include <values/valuelist.h>

using JEDVEPLUGIN::ISubSetting;
using Session::Findings;
using Session::JobSession;
using Session::PluginHost;

namespace {
// An editor as a plug-in may give it: a list of frequencies of three columns.
class TableEditor : public QWidget
{
public:
    TableEditor()
        : m_model(4, 3)
        , m_view(new OpenListView(this, false, false))
    {
        m_view->setModel(&m_model);
        m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
        m_view->setSelectionBehavior(QAbstractItemView::SelectItems);
        m_view->resize(600, 300);
        TableEditing::install(this);
        TableEditing::install(this);
        show();
    }
    QString cells() const
    {
        QStringList rows;
        for (int row = 0; row < m_model.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < m_model.columnCount(); ++column)
                cells.append(m_model.item(row, column)->text());
            rows.append(cells.join(' '));
        }
        return rows.join(", ");
    }
    void paste(int row, int column, const QString& text)
    {
        m_view->setCurrentIndex(m_model.index(row, column));
        QApplication::clipboard()->setText(text);
        QTest::keyClick(m_view, Qt::Key_V, Qt::ControlModifier);
    }
    // Selects cells of a column and types into the last of them.
    QLineEdit* type(int column, const QVector<int>& rows, const QString& text)
    {
        m_view->setCurrentIndex(m_model.index(rows.last(), column));
        for (int row : rows)
            m_view->selectionModel()->select(m_model.index(row, column), QItemSelectionModel::Select);
        m_view->edit(m_model.index(rows.last(), column));
        auto* const edit = m_view->findChild<QLineEdit*>();
        edit->setText(text);
        return edit;
    }

    SampleListModel m_model;
    OpenListView* m_view;
};
} // namespace

class TstDailyWork : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();

    void settingsAreAppliedToOthers();
    void appliedSettingsAreOneStep();
    void applyingWhatIsThereIsNoStep();
    void theHeadOfASubjobIsNotApplied();
    void aSettingWithoutTheSetIsNamed();
    void theDialogApplies();

    void rowsArePastedIntoATable();
    void pastedRowsKeepToTheTable();
    void aColumnIsEditedAtOnce();
    void leavingACellFillsItsOwnColumn();
    void pastedRowsAreOneStep();

private:
    // The setting of a type in a sub-job.
    ISubSetting* settingOf(int subjob, const QString& type);
    bool setFrequency(ISubSetting* tuner, const QString& frequency);

    PluginHost m_host;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<JobSession> m_session;
};

void TstDailyWork::initTestCase()
{
    QLoggingCategory::setFilterRules("jobeditorve.trace=false");
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QString error;
    QVERIFY2(Session::chooseInstallation(JED_SOURCE_DIR "/installation", QString(), &error),
             qPrintable(error));
    m_host.load(PluginHost::defaultFolders());
}

void TstDailyWork::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder->path());
    m_session = std::make_unique<JobSession>(m_host.factories());
    Findings findings;
    QVERIFY(m_session->open(JED_SOURCE_DIR "/installation/Jobs/surveillance.xml", &findings));
    while (m_session->topLevelCount() < 4)
        QVERIFY(m_session->duplicate(m_session->settingAt({0})));
    QVERIFY(settingOf(0, "Tuner") && settingOf(3, "Tuner"));
}

void TstDailyWork::cleanup()
{
    m_session.reset();
}

ISubSetting* TstDailyWork::settingOf(int subjob, const QString& type)
{
    ISubSetting* const top = m_session->settingAt({subjob});
    for (int i = 0; i < top->childCount(); ++i) {
        if (top->child(i)->getSettingType() == type)
            return top->child(i);
    }
    return nullptr;
}

bool TstDailyWork::setFrequency(ISubSetting* tuner, const QString& frequency)
{
    QString xml = tuner->parameterSetText("TunerSettings");
    xml.replace(QRegularExpression("<CenterFrequency>\\d+"), "<CenterFrequency>" + frequency);
    return m_session->setParameterSet(tuner, "TunerSettings", xml);
}

void TstDailyWork::settingsAreAppliedToOthers()
{
    ISubSetting* const source = settingOf(0, "Tuner");
    QVERIFY(setFrequency(source, "7123000"));
    const QVector<ISubSetting*> similar = Session::similarSettings(*m_session, source);
    QVERIFY(similar.contains(settingOf(3, "Tuner")));
    QVERIFY(!similar.contains(source));
    for (ISubSetting* setting : similar)
        QCOMPARE(setting->getSettingType(), QString("Tuner"));
    const QString antenna = settingOf(3, "Tuner")->parameterSetText("AntennaSettings");
    QVERIFY(Session::applySettings(m_session.get(), source, {"TunerSettings"}, {settingOf(3, "Tuner")})
                .isEmpty());
    QCOMPARE(settingOf(3, "Tuner")->parameterSetText("TunerSettings"),
             source->parameterSetText("TunerSettings"));
    QCOMPARE(settingOf(3, "Tuner")->parameterSetText("AntennaSettings"), antenna);
}

void TstDailyWork::appliedSettingsAreOneStep()
{
    ISubSetting* const source = settingOf(0, "Tuner");
    QVERIFY(setFrequency(source, "7123000"));
    const QByteArray before = m_session->draft();
    const int steps = m_session->undoStack()->count();
    Session::applySettings(m_session.get(), source, {"TunerSettings"},
                           Session::similarSettings(*m_session, source));
    const QByteArray after = m_session->draft();
    QVERIFY(after != before);
    QCOMPARE(m_session->undoStack()->count(), steps + 1);
    // A further edit is a step of its own.
    QVERIFY(setFrequency(settingOf(3, "Tuner"), "7124000"));
    QCOMPARE(m_session->undoStack()->count(), steps + 2);
    m_session->undoStack()->undo();
    QCOMPARE(m_session->draft(), after);
    m_session->undoStack()->undo();
    QCOMPARE(m_session->draft(), before);
    m_session->undoStack()->redo();
    QCOMPARE(m_session->draft(), after);
}

void TstDailyWork::applyingWhatIsThereIsNoStep()
{
    ISubSetting* const source = settingOf(0, "Tuner");
    const int steps = m_session->undoStack()->count();
    QVERIFY(Session::applySettings(m_session.get(), source, {"TunerSettings"}, {source}).isEmpty());
    QVERIFY(Session::applySettings(m_session.get(), source, {"TunerSettings"}, {}).isEmpty());
    QVERIFY(Session::applySettings(m_session.get(), source, {}, {settingOf(1, "Tuner")}).isEmpty());
    QCOMPARE(m_session->undoStack()->count(), steps);
}

void TstDailyWork::theHeadOfASubjobIsNotApplied()
{
    QVERIFY(m_session->settingAt({0})->parameterSetNames().contains("SubJob"));
    QVERIFY(Session::applicableSets(*m_session->settingAt({0})).isEmpty());
    QVERIFY(Session::applicableSets(*settingOf(0, "Tuner")).contains("TunerSettings"));
}

void TstDailyWork::aSettingWithoutTheSetIsNamed()
{
    ISubSetting* const source = settingOf(0, "Tuner");
    ISubSetting* const other = m_session->settingAt({1});
    QVERIFY(setFrequency(source, "7123000"));
    const QByteArray before = m_session->draft();
    const int steps = m_session->undoStack()->count();
    QCOMPARE(Session::applySettings(m_session.get(), source, {"TunerSettings"}, {other}),
             QVector<ISubSetting*>{other});
    QCOMPARE(m_session->draft(), before);
    QCOMPARE(m_session->undoStack()->count(), steps);
}

void TstDailyWork::theDialogApplies()
{
    EditorWindow window(&m_host, m_session.get());
    window.showJob();
    window.show();
    ISubSetting* const source = settingOf(0, "Tuner");
    QVERIFY(setFrequency(source, "7123000"));
    window.setCurrentSetting(source);
    QStringList nameless;
    bool wasEnabled = true;
    QTimer::singleShot(0, &window, [&] {
        QWidget* const dialog = QApplication::activeModalWidget();
        nameless = JedTest::namelessControls(dialog);
        QPushButton* apply = nullptr;
        for (QPushButton* button : dialog->findChildren<QPushButton*>()) {
            if (button->text() == "&Apply")
                apply = button;
        }
        wasEnabled = apply->isEnabled();
        auto* const targets = dialog->findChild<QListWidget*>("targets");
        QTest::keyClick(targets, Qt::Key_End);
        QTest::keyClick(targets, Qt::Key_Space);
        QTest::keyClick(targets, Qt::Key_Return);
    });
    for (QAction* action : window.menuBar()->findChildren<QAction*>()) {
        if (action->text().remove('&') == "Apply these settings to...")
            action->trigger();
    }
    QVERIFY(!wasEnabled);
    QCOMPARE(nameless, QStringList());
    QCOMPARE(settingOf(3, "Tuner")->parameterSetText("TunerSettings"),
             source->parameterSetText("TunerSettings"));
    QVERIFY(settingOf(1, "Tuner")->parameterSetText("TunerSettings") !=
            source->parameterSetText("TunerSettings"));
    m_session->undoStack()->setClean();
}

void TstDailyWork::rowsArePastedIntoATable()
{
    TableEditor editor;
    editor.paste(1, 1, "7,1\tharbour\n7,2\tlock\n");
    QCOMPARE(editor.cells(), QString("0.0 0.1 0.2, 1.0 7,1 harbour, 2.0 7,2 lock, 3.0 3.1 3.2"));
    editor.paste(0, 0, "a;b;c");
    QCOMPARE(editor.cells(), QString("a b c, 1.0 7,1 harbour, 2.0 7,2 lock, 3.0 3.1 3.2"));
    editor.m_view->header()->moveSection(2, 1);
    editor.m_view->header()->hideSection(0);
    editor.paste(3, 2, "x\ty");
    QCOMPARE(editor.cells(), QString("a b c, 1.0 7,1 harbour, 2.0 7,2 lock, 3.0 y x"));
}

void TstDailyWork::pastedRowsKeepToTheTable()
{
    TableEditor editor;
    editor.m_model.item(3, 2)->setEditable(false);
    editor.paste(3, 1, "a\tb\tc\nd\te\tf");
    QCOMPARE(editor.cells(), QString("0.0 0.1 0.2, 1.0 1.1 1.2, 2.0 2.1 2.2, 3.0 a 3.2"));
    editor.paste(0, 0, QString());
    editor.m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    editor.paste(0, 0, "x");
    QCOMPARE(editor.cells(), QString("0.0 0.1 0.2, 1.0 1.1 1.2, 2.0 2.1 2.2, 3.0 a 3.2"));
}

void TstDailyWork::aColumnIsEditedAtOnce()
{
    TableEditor editor;
    editor.m_model.item(1, 1)->setEditable(false);
    QTest::keyClick(editor.type(1, {0, 1, 3}, "x"), Qt::Key_Return);
    QTRY_COMPARE(editor.cells(), QString("0.0 x 0.2, 1.0 1.1 1.2, 2.0 2.1 2.2, 3.0 x 3.2"));
    editor.m_view->clearSelection();
    QTest::keyClick(editor.type(0, {2}, "y"), Qt::Key_Return);
    QTRY_COMPARE(editor.cells(), QString("0.0 x 0.2, 1.0 1.1 1.2, y 2.1 2.2, 3.0 x 3.2"));
    // Cells of other columns are not meant.
    QLineEdit* const edit = editor.type(2, {1, 0}, "z");
    editor.m_view->selectionModel()->select(editor.m_model.index(2, 0), QItemSelectionModel::Select);
    QTest::keyClick(edit, Qt::Key_Return);
    QTRY_COMPARE(editor.cells(), QString("0.0 x z, 1.0 1.1 z, y 2.1 2.2, 3.0 x 3.2"));
}

void TstDailyWork::leavingACellFillsItsOwnColumn()
{
    TableEditor editor;
    QLineEdit* const edit = editor.type(1, {0, 1}, "x");
    editor.m_view->selectionModel()->setCurrentIndex(editor.m_model.index(3, 2),
                                                     QItemSelectionModel::NoUpdate);
    QFocusEvent leave(QEvent::FocusOut);
    QApplication::sendEvent(edit, &leave);
    QCOMPARE(editor.cells(), QString("0.0 x 0.2, 1.0 x 1.2, 2.0 2.1 2.2, 3.0 3.1 3.2"));
}

void TstDailyWork::pastedRowsAreOneStep()
{
    auto* const node = static_cast<PluginKit::SettingNode*>(settingOf(0, "GeneralSettings"));
    auto* const list = dynamic_cast<StringList*>(node->value("AlarmSettings", "Recipient"));
    QVERIFY(list);
    TableEditor editor;
    connect(&editor.m_model, &QStandardItemModel::itemChanged, this, [&editor, list] {
        QVector<QString> items;
        for (int row = 0; row < editor.m_model.rowCount(); ++row)
            items.append(editor.m_model.item(row, 0)->text());
        list->SetItems(items);
    });
    const QByteArray before = m_session->draft();
    const int steps = m_session->undoStack()->count();
    editor.paste(0, 0, "one\ntwo\nthree");
    m_session->flushEdits();
    QCOMPARE(list->GetItems(), (QVector<QString>{"one", "two", "three", "3.0"}));
    QCOMPARE(m_session->undoStack()->count(), steps + 1);
    m_session->undoStack()->undo();
    QCOMPARE(m_session->draft(), before);
}

JED_TEST_MAIN(TstDailyWork)
#include "tst_dailywork.moc"
