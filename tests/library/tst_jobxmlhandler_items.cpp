#include "jobfileparts.h"
#include "jobxmlhandler.h"

using namespace JobFileParts;
using JEDVEPLUGIN::JobXmlHandler;
using JobXml::TransmitterItem;

class TstJobXmlHandlerItems : public QObject
{
    Q_OBJECT
private slots:
    void transmitterItem_data();
    void transmitterItem();
    void transmitterItemIgnoresOtherSets_data();
    void transmitterItemIgnoresOtherSets();
    void emptyItemSettingChangesNothing();
    void itemSettingOfUnknownNameIsReported();
    void scanDetailOfAnItem_data();
    void scanDetailOfAnItem();
    void unreadableScanCountsAsEmpty();
};

void TstJobXmlHandlerItems::transmitterItem_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("part");
    QTest::newRow("ADemSettings") << "ADemSettings"
                                  << "Audio_Settings";
    QTest::newRow("DF_Settings") << "DF_Settings"
                                 << "DF_Settings";
    QTest::newRow("TunerSettings") << "TunerSettings"
                                   << "FFM_Settings";
    QTest::newRow("FFTSettings") << "FFTSettings"
                                 << "FFTSettings";
}

void TstJobXmlHandlerItems::transmitterItem()
{
    QFETCH(QString, name);
    QFETCH(QString, part);
    JedTest::TraceRecorder recorder;
    TransmitterItem item;
    fill(item, "TransmitterItem", ITEM_PARTS);
    QMap<QString, QString> expected = values(item);
    QCOMPARE(expected.value(part), QString("1"));
    expected[part] = "2";
    JobXmlHandler::getInstance()->addTransmitterListSetting(name, element(part, 2), item);
    QCOMPARE(values(item), expected);
    QCOMPARE(recorder.take(), QStringList());
}

void TstJobXmlHandlerItems::transmitterItemIgnoresOtherSets_data()
{
    QTest::addColumn<QString>("name");
    const QStringList taken = {"ADemSettings", "DF_Settings", "TunerSettings", "FFTSettings", "ScanSettings"};
    for (const SetName& set : SET_NAMES) {
        if (!taken.contains(set.name))
            QTest::newRow(set.name) << set.name;
    }
}

void TstJobXmlHandlerItems::transmitterItemIgnoresOtherSets()
{
    QFETCH(QString, name);
    JedTest::TraceRecorder recorder;
    TransmitterItem item;
    fill(item, "TransmitterItem", ITEM_PARTS);
    const QString before = item.GetXmlString();
    for (const QString& part : ITEM_PARTS)
        JobXmlHandler::getInstance()->addTransmitterListSetting(name, element(part, 2), item);
    QCOMPARE(item.GetXmlString(), before);
    QCOMPARE(recorder.take(), QStringList());
}

void TstJobXmlHandlerItems::emptyItemSettingChangesNothing()
{
    JedTest::TraceRecorder recorder;
    TransmitterItem item;
    fill(item, "TransmitterItem", ITEM_PARTS);
    const QString before = item.GetXmlString();
    for (const SetName& set : SET_NAMES)
        JobXmlHandler::getInstance()->addTransmitterListSetting(set.name, "", item);
    QCOMPARE(item.GetXmlString(), before);
    QCOMPARE(recorder.take(), QStringList());
}

void TstJobXmlHandlerItems::itemSettingOfUnknownNameIsReported()
{
    JedTest::TraceRecorder recorder;
    TransmitterItem item;
    fill(item, "TransmitterItem", ITEM_PARTS);
    const QString before = item.GetXmlString();
    for (const char* name : {"Foo", "", "tunersettings", "Detail"}) {
        JobXmlHandler::getInstance()->addTransmitterListSetting(name, element("FFM_Settings", 2), item);
        QVERIFY(isReported(recorder, name));
        JobXmlHandler::getInstance()->addTransmitterListSetting(name, "", item);
        QVERIFY(isReported(recorder, name));
    }
    QCOMPARE(item.GetXmlString(), before);
}

void TstJobXmlHandlerItems::scanDetailOfAnItem_data()
{
    QTest::addColumn<QString>("detail");
    QTest::addColumn<QString>("taken");
    QTest::newRow("all") << "<Threshold>21</Threshold><DwellTime>22</DwellTime><SignalTime>23</SignalTime>"
                            "<MeasurementTime>24</MeasurementTime>"
                         << "21 22 23 24";
    QTest::newRow("no dwell time") << "<Threshold>21</Threshold><SignalTime>23</SignalTime>"
                                      "<MeasurementTime>24</MeasurementTime>"
                                   << "21 12 23 24";
    QTest::newRow("no signal time") << "<Threshold>21</Threshold><DwellTime>22</DwellTime>"
                                       "<MeasurementTime>24</MeasurementTime>"
                                    << "21 22 13 24";
    QTest::newRow("no measurement time")
        << "<Threshold>21</Threshold><DwellTime>22</DwellTime><SignalTime>23</SignalTime>"
        << "21 22 23 14";
    QTest::newRow("threshold alone") << "<Threshold>21</Threshold>"
                                     << "21 12 13 14";
    QTest::newRow("a threshold is always taken") << "<DwellTime>22</DwellTime>"
                                                 << "default 22 13 14";
    QTest::newRow("no detail") << ""
                               << "default 12 13 14";
}

void TstJobXmlHandlerItems::scanDetailOfAnItem()
{
    QFETCH(QString, detail);
    QFETCH(QString, taken);
    JedTest::TraceRecorder recorder;
    TransmitterItem item;
    fill(item, "TransmitterItem", ITEM_PARTS);
    const QMap<QString, QString> before = values(item);
    item.GetDetail().SetThreshold(11);
    item.GetDetail().SetDwellTime(12);
    item.GetDetail().SetSignalTime(13);
    item.GetDetail().SetMeasurementTime(14);

    const QString range =
        detail.isEmpty() ? QString() : QString("<Range><Detail>%1</Detail></Range>").arg(detail);
    JobXmlHandler::getInstance()->addTransmitterListSetting(
        "ScanSettings", QString("<Scan_Settings>%1</Scan_Settings>").arg(range), item);

    const JobXml::Detail& after = item.GetDetail();
    const double usual = JobXml::Detail().GetThreshold();
    const QString threshold = taken.startsWith("default") && after.GetThreshold() == usual
                                  ? "default"
                                  : QString::number(after.GetThreshold());
    QCOMPARE(QString("%1 %2 %3 %4")
                 .arg(threshold)
                 .arg(after.GetDwellTime())
                 .arg(after.GetSignalTime())
                 .arg(after.GetMeasurementTime()),
             taken);
    QMap<QString, QString> others = values(item);
    others["Detail"] = before["Detail"];
    QCOMPARE(others, before);
    QCOMPARE(recorder.take(), QStringList());
}

void TstJobXmlHandlerItems::unreadableScanCountsAsEmpty()
{
    TransmitterItem item;
    item.GetDetail().SetThreshold(11);
    item.GetDetail().SetDwellTime(12);
    JobXmlHandler::getInstance()->addTransmitterListSetting("ScanSettings", "<Scan_Settings>", item);
    QCOMPARE(item.GetDetail().GetThreshold(), JobXml::Detail().GetThreshold());
    QVERIFY(item.GetDetail().IsThresholdSet());
    QCOMPARE(item.GetDetail().GetDwellTime(), 12);
}

QTEST_GUILESS_MAIN(TstJobXmlHandlerItems)
#include "tst_jobxmlhandler_items.moc"
