#include "station.h"
#include <support/accessiblenames.h>
#include <support/palettes.h>
#include <support/testmain.h>

#include <isubsetting.h>
#include <jedsubsettingfactory.h>
#include <jobeditor/frequencypane.h>
#include <jobeditor/frequencystrip.h>
#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QCheckBox>
#include <QPushButton>
#include <QScrollBar>
#include <session/fieldplaces.h>
#include <session/frequencymodel.h>
#include <session/jobsession.h>
#include <session/pluginhost.h>

using JEDVEPLUGIN::ISubSetting;
using Session::FrequencyModel;
using Session::JobSession;
using Session::PluginHost;

namespace {
const QString EXAMPLES = JED_SOURCE_DIR "/installation/Jobs/";
} // namespace

class TstFrequencyStrip : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();

    void rowsOfAJob();
    void rowsFollowTheJob();
    void nothingIsWorkedOutUnseen();
    void everyBarIsDrawn_data() { examples(); }
    void everyBarIsDrawn();
    void barsAreWhereTheyAreFound_data() { examples(); }
    void barsAreWhereTheyAreFound();
    void keysReachEveryBar();
    void choosingLeadsToTheField_data();
    void choosingLeadsToTheField();
    void zoomKeepsThePlace();
    void zoomHasLimits();
    void scalesDiffer();
    void screenReadersHaveEveryBar();
    void controlsHaveNames();
    void anEmptyJobIsEmpty();

private:
    void examples();
    bool open(const QString& name);
    FrequencyStrip* strip() const { return m_pane->findChild<FrequencyStrip*>(); }
    FrequencyModel* model() const { return m_pane->findChild<FrequencyModel*>(); }
    QStringList texts() const;
    void picture(const QString& name) const;
    QModelIndex find(const QString& text) const;

    PluginHost m_host;
    std::unique_ptr<JobSession> m_session;
    std::unique_ptr<FrequencyPane> m_pane;
};

void TstFrequencyStrip::initTestCase()
{
    JedTest::useColours(false);
    JedTest::stationResources();
    m_host.load(PluginHost::defaultFolders());
    QVERIFY(m_host.factory("Search") && m_host.factory("Production") && m_host.factory("DFScan"));
}

void TstFrequencyStrip::init()
{
    m_session = std::make_unique<JobSession>(m_host.factories());
    m_pane = std::make_unique<FrequencyPane>(m_session.get());
    new QAbstractItemModelTester(model(), QAbstractItemModelTester::FailureReportingMode::QtTest, model());
    m_pane->resize(700, 300);
    m_pane->show();
    m_pane->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_pane.get()));
}

void TstFrequencyStrip::cleanup()
{
    m_pane.reset();
    m_session.reset();
}

void TstFrequencyStrip::examples()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"dfscan", "measurement", "production", "search", "surveillance"})
        QTest::newRow(name) << QString(name);
}

bool TstFrequencyStrip::open(const QString& name)
{
    Session::Findings findings;
    const bool isOpen = m_session->open(EXAMPLES + name + ".xml", &findings);
    QTest::qWait(20); // For a timer without a delay, and the layout after it.
    return isOpen;
}

QStringList TstFrequencyStrip::texts() const
{
    QStringList result;
    for (int row = 0; row < model()->rowCount(); ++row)
        result.append(model()->index(row).data().toString());
    return result;
}

void TstFrequencyStrip::picture(const QString& name) const
{
    if (qEnvironmentVariableIsSet("JED_PICTURES"))
        m_pane->grab().save(qEnvironmentVariable("JED_PICTURES") + "/frequencies-" + name + ".png");
}

QModelIndex TstFrequencyStrip::find(const QString& text) const
{
    return model()->index(texts().indexOf(text));
}

void TstFrequencyStrip::rowsOfAJob()
{
    QVERIFY(open("search"));
    QCOMPARE(texts(),
             (QStringList{"Airband: Scan, Airband, 118 MHz … 136.975 MHz", "Airband: Tuner, 127 MHz ± 5 MHz",
                          "Airband: the receiver covers 108 MHz … 144 MHz",
                          "ISM 433 MHz: Tuner, ISM 433 MHz, 433.92 MHz ± 1 MHz",
                          "ISM 433 MHz: Short-time signals, Telemetry burst, 433.92 MHz ± 1 MHz",
                          "ISM 433 MHz: Hopper processing, 433.05 MHz … 434.79 MHz",
                          "ISM 433 MHz: the receiver covers 400 MHz … 470 MHz"}));
    QCOMPARE(model()->index(0).data(Qt::ToolTipRole).toString(),
             QString("Airband: Scan\nAirband\n118 MHz … 136.975 MHz\nfrom 118000000 Hz to 136975000 Hz, "
                     "18.975 MHz wide"));
    QCOMPARE(model()->subjobCount(), 2);
    QCOMPARE(model()->subjobName(1), QString("ISM 433 MHz"));
}

void TstFrequencyStrip::rowsFollowTheJob()
{
    QVERIFY(open("search"));
    QSignalSpy reset(model(), &QAbstractItemModel::modelReset);
    ISubSetting* const scan = Session::findCarrier(m_session->settingAt({0}), "ScanSettings");
    const QString text = scan->parameterSetText("ScanSettings");
    QVERIFY(m_session->setParameterSet(scan, "ScanSettings",
                                       QString(text).replace(">136975000<", ">120000000<")));
    QTRY_COMPARE(texts().value(0), QString("Airband: Scan, Airband, 118 MHz … 120 MHz"));
    QCOMPARE(reset.count(), 0);
    // What could not be told is a row, too.
    QVERIFY(m_session->setParameterSet(scan, "ScanSettings",
                                       QString(text).replace(">136975000<", ">110000000<")));
    QTRY_VERIFY(texts().contains("Airband: Scan: the range from 118 MHz to 110 MHz ends before it begins"));
    QVERIFY(m_session->rename(m_session->settingAt({1}), "Other"));
    QTRY_VERIFY(texts().contains("Other: the receiver covers 400 MHz … 470 MHz"));
    QVERIFY(m_session->remove(m_session->settingAt({0})));
    QTRY_COMPARE(model()->subjobCount(), 1);
    m_session->undoStack()->undo();
    QTRY_COMPARE(model()->subjobCount(), 2);
}

void TstFrequencyStrip::nothingIsWorkedOutUnseen()
{
    m_pane->hide();
    QVERIFY(open("search"));
    QCOMPARE(model()->rowCount(), 0);
    m_pane->show();
    QTRY_COMPARE(model()->rowCount(), 7);
}

// Each bar leaves its colour where it is said to be.
void TstFrequencyStrip::everyBarIsDrawn()
{
    QFETCH(QString, name);
    QVERIFY(open(name));
    QVERIFY(model()->rowCount() > 1);
    picture(name);
    const QImage image = strip()->viewport()->grab().toImage();
    for (int row = 0; row < model()->rowCount(); ++row) {
        if (model()->item(row).kind != FrequencyModel::USED)
            continue;
        const QRect bar = strip()->visualRect(model()->index(row));
        QVERIFY(strip()->viewport()->rect().contains(bar.center()) ||
                strip()->verticalScrollBar()->maximum() > 0);
        // A fine screen has more than one pixel for each.
        const QPoint inside = (bar.topLeft() + QPoint(2, 2)) * image.devicePixelRatio();
        if (bar.width() > 5 && image.rect().contains(inside))
            QCOMPARE(image.pixelColor(inside), strip()->palette().color(QPalette::Highlight));
    }
}

void TstFrequencyStrip::barsAreWhereTheyAreFound()
{
    QFETCH(QString, name);
    QVERIFY(open(name));
    m_pane->resize(700, 2000);
    QCoreApplication::processEvents();
    QRegion taken;
    for (int row = 0; row < model()->rowCount(); ++row) {
        const QModelIndex index = model()->index(row);
        const QRect rect = strip()->visualRect(index);
        QVERIFY(rect.isValid());
        // Bars of one sub-job do not cover each other, save for single frequencies that stand side by side.
        if (rect.width() > 8)
            QCOMPARE(strip()->indexAt(rect.center()), index);
        QVERIFY(strip()->indexAt(rect.center()).isValid());
    }
    QVERIFY(!strip()->indexAt(QPoint(300, 3)).isValid());
    QCOMPARE(strip()->indexAt(strip()->visualRect(model()->index(0)).center() + QPoint(-5000, 0)).row(), 0);
}

void TstFrequencyStrip::keysReachEveryBar()
{
    QVERIFY(open("surveillance"));
    strip()->setFocus();
    QTest::keyClick(strip(), Qt::Key_Home);
    QSet<int> reached;
    for (int i = 0; i < model()->rowCount(); ++i) {
        reached.insert(strip()->currentIndex().row());
        QTest::keyClick(strip(), Qt::Key_Right);
    }
    QCOMPARE(reached.size(), model()->rowCount());
    QTest::keyClick(strip(), Qt::Key_Home);
    QCOMPARE(strip()->currentIndex().row(), 0);
    QTest::keyClick(strip(), Qt::Key_PageDown);
    QCOMPARE(model()->item(strip()->currentIndex().row()).subjob, 1);
    QTest::keyClick(strip(), Qt::Key_PageUp);
    QCOMPARE(strip()->currentIndex().row(), 0);
    QTest::keyClick(strip(), Qt::Key_End);
    QCOMPARE(strip()->currentIndex().row(), model()->rowCount() - 1);
    // What is current is in view, and down and up lead through the bands.
    QTest::keyClick(strip(), Qt::Key_Home);
    int top = strip()->visualRect(strip()->currentIndex()).top() + strip()->verticalScrollBar()->value();
    int steps = 0;
    for (int before = -1; before != strip()->currentIndex().row() && steps < 100; ++steps) {
        before = strip()->currentIndex().row();
        QVERIFY(strip()->viewport()->rect().contains(
            strip()->visualRect(strip()->currentIndex()).intersected(strip()->viewport()->rect()).center()));
        QTest::keyClick(strip(), Qt::Key_Down);
        const int next =
            strip()->visualRect(strip()->currentIndex()).top() + strip()->verticalScrollBar()->value();
        QVERIFY(next > top || before == strip()->currentIndex().row());
        top = next;
    }
    QVERIFY(steps > 3);
    QCOMPARE(model()->item(strip()->currentIndex().row()).subjob, model()->subjobCount() - 1);
}

void TstFrequencyStrip::choosingLeadsToTheField_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("expected");
    QTest::newRow("a scan") << "Airband: Scan, Airband, 118 MHz … 136.975 MHz"
                            << "Scan|ScanSettings|Range.StartFrequency";
    QTest::newRow("a tuner") << "ISM 433 MHz: Tuner, ISM 433 MHz, 433.92 MHz ± 1 MHz"
                             << "Tuner|TunerSettings|CenterFrequency";
    QTest::newRow("a set that no setting carries")
        << "ISM 433 MHz: Hopper processing, 433.05 MHz … 434.79 MHz"
        << "1";
    QTest::newRow("what a receiver covers") << "ISM 433 MHz: the receiver covers 400 MHz … 470 MHz"
                                            << "1";
}

void TstFrequencyStrip::choosingLeadsToTheField()
{
    QFETCH(QString, row);
    QVERIFY(open("search"));
    QString chosen;
    connect(m_pane.get(), &FrequencyPane::fieldChosen, this,
            [&chosen](ISubSetting* setting, const QString& set, const QString& field) {
                chosen = QStringList{setting->getDisplayName(), set, field}.join('|');
            });
    connect(m_pane.get(), &FrequencyPane::subjobChosen, this,
            [&chosen](int subjob) { chosen = QString::number(subjob); });
    const QModelIndex index = find(row);
    QVERIFY(index.isValid());
    strip()->setCurrentIndex(index);
    strip()->setFocus();
    QTest::keyClick(strip(), Qt::Key_Return);
    QTEST(chosen, "expected");
    chosen.clear();
    QTest::mouseClick(strip()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      strip()->visualRect(index).center());
    QTEST(chosen, "expected");
}

void TstFrequencyStrip::zoomKeepsThePlace()
{
    QVERIFY(open("search"));
    const QModelIndex index = find("ISM 433 MHz: Tuner, ISM 433 MHz, 433.92 MHz ± 1 MHz");
    const QRect before = strip()->visualRect(index);
    for (int i = 0; i < 12; ++i) {
        QWheelEvent event(before.center(), strip()->viewport()->mapToGlobal(before.center()), QPoint(),
                          QPoint(0, 120), Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(strip()->viewport(), &event);
    }
    picture("zoomed");
    const QRect after = strip()->visualRect(index);
    QVERIFY2(after.width() > 20 * before.width(), qPrintable(QString::number(after.width())));
    QVERIFY2(after.contains(before.center()), qPrintable(QString::number(after.left())));
    // What is out of view comes back when it becomes current.
    const QModelIndex scan = find("Airband: Scan, Airband, 118 MHz … 136.975 MHz");
    QVERIFY(!strip()->viewport()->rect().intersects(strip()->visualRect(scan)));
    strip()->setCurrentIndex(scan);
    QVERIFY(strip()->viewport()->rect().intersects(strip()->visualRect(scan)));
    QTest::keyClick(strip(), Qt::Key_0);
    QCOMPARE(strip()->visualRect(index), before);
}

void TstFrequencyStrip::zoomHasLimits()
{
    QVERIFY(open("search"));
    for (int i = 0; i < 100; ++i)
        QTest::keyClick(strip(), Qt::Key_Plus);
    QVERIFY(strip()->zoom() * strip()->viewport()->width() < 2e9);
    QVERIFY(strip()->zoom() > 1e5);
    QVERIFY(!strip()->viewport()->grab().isNull());
    for (int i = 0; i < 200; ++i)
        QTest::keyClick(strip(), Qt::Key_Minus);
    QCOMPARE(strip()->zoom(), 1.0);
    QCOMPARE(strip()->horizontalScrollBar()->maximum(), 0);
}

void TstFrequencyStrip::scalesDiffer()
{
    QVERIFY(open("dfscan"));
    const QRect before = strip()->visualRect(model()->index(0));
    m_pane->findChild<QCheckBox*>()->click();
    QVERIFY(!strip()->isLogarithmic());
    QVERIFY(strip()->visualRect(model()->index(0)) != before);
    picture("linear");
    JedTest::useColours(true);
    m_pane->findChild<QCheckBox*>()->click();
    strip()->setCurrentIndex(model()->index(1));
    strip()->setFocus();
    picture("dark");
    JedTest::useColours(false);
    QCOMPARE(strip()->visualRect(model()->index(0)), before);
}

void TstFrequencyStrip::screenReadersHaveEveryBar()
{
    QVERIFY(open("search"));
    QAccessibleInterface* const element = QAccessible::queryAccessibleInterface(strip());
    QVERIFY(element && element->tableInterface());
    QStringList names;
    for (int row = 0; row < element->tableInterface()->rowCount(); ++row) {
        QAccessibleInterface* const cell = element->tableInterface()->cellAt(row, 0);
        names.append(cell->text(QAccessible::Name));
        QCOMPARE(cell->rect().topLeft(),
                 strip()->viewport()->mapToGlobal(strip()->visualRect(model()->index(row)).topLeft()));
    }
    QCOMPARE(names, texts());
}

void TstFrequencyStrip::controlsHaveNames()
{
    QCOMPARE(JedTest::namelessControls(m_pane.get()), QStringList());
}

void TstFrequencyStrip::anEmptyJobIsEmpty()
{
    m_session->begin(JEDVE::JOB_TYPE_SEARCH, QString());
    QCoreApplication::processEvents();
    QCOMPARE(model()->rowCount(), 0);
    for (const Qt::Key key :
         {Qt::Key_Right, Qt::Key_Down, Qt::Key_End, Qt::Key_PageDown, Qt::Key_Return, Qt::Key_Plus})
        QTest::keyClick(strip(), key);
    QVERIFY(!strip()->currentIndex().isValid());
    QVERIFY(!strip()->viewport()->grab().isNull());
}

JED_TEST_MAIN(TstFrequencyStrip)
#include "tst_frequencystrip.moc"
