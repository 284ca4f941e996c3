#include <support/resourcedialogfixture.h>
#include <support/testmain.h>

#include <QElapsedTimer>
#include <QPushButton>

using JedTest::DescriptionPtr;
using JedTest::receiver;

namespace {
const char* const RESULTS_OF_CANCEL = "none||||0 DSC|0%|||";
} // namespace

class TstResourceSelectionResults : public QObject, private JedTest::ResourceDialogFixture
{
    Q_OBJECT
private slots:
    void cleanup() { close(); }

    void resultsBeforeTheEnd();
    void buttonsAndKeysEndTheDialog_data();
    void buttonsAndKeysEndTheDialog();
    void resultsAreTakenWithFinished();
    void fieldsChangeInOrder();
    void execReturnsWhatTheUserDid();
    void manyDescriptions();
    void acceptedAfterCancelTakesTheFields();
    void withoutDetectorFields();
};

void TstResourceSelectionResults::resultsBeforeTheEnd()
{
    open({receiver("HT720", "A", "Timed")}, {true, true, true, {}});
    check("PreClassifier")->setChecked(true);
    spin("DSCChannels")->setValue(3);
    QCOMPARE(results(), QString("A|Timed|||0 DSC|0%|||"));
}

void TstResourceSelectionResults::buttonsAndKeysEndTheDialog_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("result");
    QTest::newRow("Select") << "OkButton" << 0 << 1;
    QTest::newRow("Cancel") << "CancelButton" << 0 << 0;
    QTest::newRow("Return") << "" << int(Qt::Key_Return) << 1;
    QTest::newRow("Escape") << "" << int(Qt::Key_Escape) << 0;
}

void TstResourceSelectionResults::buttonsAndKeysEndTheDialog()
{
    QFETCH(QString, button);
    QFETCH(int, key);
    QFETCH(int, result);

    open({receiver("HT720", "A", "Timed")}, {true, true, true, {}});
    m_dialog->show();
    QSignalSpy spy(m_dialog.get(), &QDialog::finished);
    if (button.isEmpty())
        QTest::keyClick(m_dialog.get(), Qt::Key(key));
    else
        QTest::mouseClick(find<QPushButton>(button), Qt::LeftButton);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().toInt(), result);
    QCOMPARE(m_dialog->result(), result);
    QCOMPARE(results(),
             QString(result == QDialog::Accepted ? "A|Timed|Receiver|SignalDetector|0 DSC|50%|||detector"
                                                 : RESULTS_OF_CANCEL));
}

void TstResourceSelectionResults::resultsAreTakenWithFinished()
{
    open({receiver("HT720", "A", "Timed")}, {true, true, false, {}});
    QStringList heard;
    connect(m_dialog.get(), &QDialog::accepted, this, [&] { heard << "accepted: " + results(); });
    connect(m_dialog.get(), &QDialog::finished, this, [&] { heard << "finished: " + results(); });
    m_dialog->accept();
    QCOMPARE(heard, QStringList({"accepted: A|Timed|||0 DSC|0%|||",
                                 "finished: A|Timed|Receiver|SignalDetector|0 DSC|50%|||detector"}));
}

void TstResourceSelectionResults::fieldsChangeInOrder()
{
    open({receiver("HT720", "A", "Timed Manual", "X"), receiver("TRV9KScanSettings", "B", "Manual", "Y"),
          receiver("SignalRecorder", "C")},
         {true, true, true, {}});
    check("Production")->setChecked(true);
    QStringList heard;
    connect(modes(), &QListWidget::currentTextChanged, this,
            [&](const QString& text) { heard << "mode " + text; });
    for (const QString name : {"BaseResource", "RecordLocation", "DetectorType", "DetectorBaseResource"}) {
        connect(combo(name), &QComboBox::currentTextChanged, this,
                [&heard, name](const QString& text) { heard << name + ' ' + text; });
    }
    for (const QString name : {"Detector", "Production"}) {
        connect(check(name), &QCheckBox::stateChanged, this,
                [&heard, name](int state) { heard << name + ' ' + QString::number(state); });
    }

    combo("TunerType")->setCurrentText("TRV9KScanSettings");
    QCOMPARE(heard, QStringList({"mode ", "mode Started by the operator", "DetectorBaseResource ",
                                 "DetectorBaseResource Y", "RecordLocation ", "RecordLocation Not recorded",
                                 "RecordLocation Server of the station"}));
    heard.clear();
    combo("TunerType")->setCurrentText("SignalRecorder");
    QCOMPARE(heard, QStringList(
                        {"mode ", "DetectorBaseResource ", "RecordLocation ", "Production 0", "Detector 0"}));
}

void TstResourceSelectionResults::execReturnsWhatTheUserDid()
{
    open({receiver("HT720", "A", "Timed"), receiver("HT720", "B", "Manual")}, {});
    QTimer::singleShot(0, m_dialog.get(), [this] {
        combo("BaseResource")->setCurrentIndex(1);
        QTest::keyClick(m_dialog.get(), Qt::Key_Return);
    });
    QCOMPARE(m_dialog->exec(), int(QDialog::Accepted));
    QCOMPARE(m_dialog->getSelectedDescription()->getBaseResource(), QString("B"));
    QCOMPARE(m_dialog->getSelectedStartupMode(), QString("Manual"));
}

void TstResourceSelectionResults::manyDescriptions()
{
    QList<DescriptionPtr> resources;
    for (int number = 0; number < 500; ++number) {
        const QString connectable = QStringList(QVector<QString>(20, "C").toList()).join(' ');
        resources << receiver(JedTest::RESOURCE_KINDS.at(number % 5), QString("R%1").arg(number),
                              "Manual Timed", connectable);
    }
    QElapsedTimer timer;
    timer.start();
    open(resources, {true, true, true, {}});
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    for (int type = 4; type >= 0; --type) {
        combo("TunerType")->setCurrentIndex(type);
        QCOMPARE(combo("BaseResource")->count(), 100);
    }
    // Ten times what nobody notices.
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
}

void TstResourceSelectionResults::acceptedAfterCancelTakesTheFields()
{
    open({receiver("HT720", "A", "Timed"), receiver("HT720", "B", "Manual")}, {true, true, true, {}});
    m_dialog->reject();
    combo("BaseResource")->setCurrentIndex(1);
    m_dialog->accept();
    QCOMPARE(results(), QString("B|Manual|Receiver|SignalDetector|0 DSC|50%|||detector"));
}

void TstResourceSelectionResults::withoutDetectorFields()
{
    open({receiver("HT720", "A", "Timed", "X"), receiver("SignalRecorder", "B")}, {false, true, false, {}});
    QVERIFY(!check("Detector"));
    QVERIFY(!spin("DSCChannels"));
    combo("TunerType")->setCurrentText("SignalRecorder");
    QCOMPARE(visibleFields(), QString("BaseResource TunerName TunerType"));
    combo("TunerType")->setCurrentText("HT720");
    QCOMPARE(visibleFields(), QString("BaseResource RecordLocation StartupModes TunerName TunerType"));
    m_dialog->accept();
    QCOMPARE(results(), QString("A|Timed|Receiver||0 DSC|50%|||"));
    m_dialog->reject();
    QCOMPARE(results(), QString(RESULTS_OF_CANCEL));
}

JED_TEST_MAIN(TstResourceSelectionResults)
#include "tst_resourceselectionresults.moc"
