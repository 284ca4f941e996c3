#include <jobxml/job.h>
#include <session/revisittime.h>

using Session::RevisitTime;

namespace {
// Ten kilohertz wide; the tuner settles in 2 ms, a free frequency takes 8 ms, an occupied one 100 ms.
const QString SCAN =
    "<FFM_Settings><Bandwidth>4000</Bandwidth><SettlingTime>2</SettlingTime></FFM_Settings>"
    "<Scan_Settings><Mode>Frequency</Mode><Direction>Up</Direction><Cycles>0</Cycles>"
    "<CyclePause>0</CyclePause><Range><Name>Band</Name><StartFrequency>10000</StartFrequency>"
    "<StopFrequency>20000</StopFrequency><StepWidth>1000</StepWidth><Detail>"
    "<DwellTime>8</DwellTime><SignalTime>100</SignalTime><MeasurementTime>5</MeasurementTime>"
    "</Detail></Range><HoldCriteria><Hold>false</Hold><HoldTime>5000</HoldTime>"
    "<Resume>TimeElapsed</Resume></HoldCriteria></Scan_Settings>";

QString textOf(const QString& settings)
{
    JobXml::Subjob subjob;
    subjob.SetXmlString("<Subjob><Settings>" + settings + "</Settings></Subjob>", false);
    QStringList lines;
    for (const RevisitTime& revisit : Session::revisitTimes(subjob))
        lines.append(QStringList{revisit.source,
                                 revisit.isKnown ? QString::number(revisit.time) : QString("unknown"),
                                 revisit.notes.join("; ")}
                         .join('|'));
    return lines.join('\n');
}
} // namespace

class TstRevisitTime : public QObject
{
    Q_OBJECT
private slots:
    void scan_data();
    void scan();
    void lists_data();
    void lists();
    void durations_data();
    void durations();
};

void TstRevisitTime::scan_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("expected");
    const QString plain = "Scan, Band|110|11 steps of 10 ms; Each occupied frequency adds up to 92 ms";
    QTest::newRow("eleven steps") << ""
                                  << "" << plain;
    QTest::newRow("a rest below the last step does not count") << "20000<"
                                                               << "20999<" << plain;
    QTest::newRow("no name") << "<Name>Band</Name>"
                             << "" << QString(plain).remove(", Band");
    QTest::newRow("measurement that is longer than the stay")
        << "<MeasurementTime>5<"
        << "<MeasurementTime>18<"
        << "Scan, Band|220|11 steps of 20 ms; Each occupied frequency adds up to 82 ms";
    QTest::newRow("pause") << "<CyclePause>0<"
                           << "<CyclePause>1000<" << QString(plain).replace("110", "1110");
    QTest::newRow("signal time that is shorter than the stay")
        << "<SignalTime>100<"
        << "<SignalTime>1<" << QString(plain).replace("92", "0");
    QTest::newRow("one frequency") << "<StopFrequency>20000<"
                                   << "<StopFrequency>10000<"
                                   << QString(plain).replace("110", "10").replace("11 ", "1 ");
    QTest::newRow("one frequency, no step width") << "<StopFrequency>20000</StopFrequency><StepWidth>1000<"
                                                  << "<StopFrequency>10000</StopFrequency><StepWidth>0<"
                                                  << QString(plain).replace("110", "10").replace("11 ", "1 ");
    QTest::newRow("suppressed: two names of one step, one outside, one above the last step")
        << "<Range>"
        << "<SuppressedFrequency>12000</SuppressedFrequency><SuppressedFrequency>12400</SuppressedFrequency>"
           "<SuppressedFrequency>9000</SuppressedFrequency><SuppressedFrequency>20001</SuppressedFrequency>"
           "<Range>"
        << QString(plain).replace("110", "100").replace("11 ", "10 ");
    QTest::newRow("panorama: three blocks")
        << ">Frequency<"
        << ">Panorama<"
        << "Scan, Band|30|3 steps of 10 ms; Each occupied frequency adds up to 92 ms";
    QTest::newRow("panorama without a tuner")
        << SCAN.section("<Range>", 0, 0) << "<Scan_Settings><Mode>Panorama</Mode>"
        << "Scan, Band|unknown|The bandwidth of the tuner is not known";
    QTest::newRow("without a tuner")
        << SCAN.section("<Scan_Settings>", 0, 0) << ""
        << "Scan, Band|88|11 steps of 8 ms; Each occupied frequency adds up to 92 ms";
    QTest::newRow("stored channels") << ">Frequency<"
                                     << ">Memory<"
                                     << "Scan, Band|unknown|The job does not name the stored channels";
    QTest::newRow("backwards") << "<StopFrequency>20000<"
                               << "<StopFrequency>9999<"
                               << "Scan, Band|unknown|The scan ends before it begins";
    QTest::newRow("no step width") << "<StepWidth>1000<"
                                   << "<StepWidth>0<"
                                   << "Scan, Band|unknown|The scan has no step width";
    QTest::newRow("hold for a time") << "<Hold>false<"
                                     << "<Hold>true<" << QString(plain).replace("92 ms", "4.99 s");
    QTest::newRow("hold until the signal is lost")
        << "<Hold>false</Hold><HoldTime>5000</HoldTime><Resume>TimeElapsed<"
        << "<Hold>true</Hold><HoldTime>5000</HoldTime><Resume>SignalLost<"
        << "Scan, Band|110|11 steps of 10 ms; The scan stays on an occupied frequency until the signal is "
           "lost";
    QTest::newRow("hold until the operator goes on")
        << "<Hold>false</Hold><HoldTime>5000</HoldTime><Resume>TimeElapsed<"
        << "<Hold>true</Hold><HoldTime>5000</HoldTime><Resume>Operator<"
        << "Scan, Band|110|11 steps of 10 ms; The scan stays on an occupied frequency until the operator "
           "lets "
           "it go on";
    QTest::newRow("up and down")
        << ">Up<"
        << ">Alternating<"
        << plain + "; At the ends of the range up to twice as long, since the direction changes";
    QTest::newRow("once") << "<Cycles>0<"
                          << "<Cycles>1<" << plain + "; The scan runs once";
}

void TstRevisitTime::scan()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QVERIFY(before.isEmpty() || SCAN.count(before) == 1);
    QTEST(textOf(before.isEmpty() ? SCAN : QString(SCAN).replace(before, after)), "expected");
}

void TstRevisitTime::lists_data()
{
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("expected");
    const QString item = "<FrequencyItem><Frequency>1</Frequency><Active>%1</Active></FrequencyItem>";
    const QString list = "<FrequencyListSettings><DwellTime>250</DwellTime>%1</FrequencyListSettings>";
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("frequencies") << list.arg(item.arg("true") + item.arg("false") + item.arg("true"))
                                 << "Frequency list|500|2 steps of 250 ms";
    QTest::newRow("none in use") << list.arg(item.arg("false"))
                                 << "Frequency list|unknown|No entry of the list is used";
    QTest::newRow("transmitters")
        << "<TransmitterListSettings><TransmitterItem><Active>true</Active><Detail><DwellTime>100</DwellTime>"
           "<MeasurementTime>5</MeasurementTime></Detail></TransmitterItem><TransmitterItem><Active>true"
           "</Active><Detail><DwellTime>10</DwellTime><MeasurementTime>5</MeasurementTime></Detail>"
           "<FFM_Settings><SettlingTime>7</SettlingTime></FFM_Settings></TransmitterItem><TransmitterItem>"
           "<Active>false</Active></TransmitterItem></TransmitterListSettings>"
        << "Transmitter list|117|2 steps";
}

void TstRevisitTime::lists()
{
    QFETCH(QString, settings);
    QTEST(textOf(settings), "expected");
}

void TstRevisitTime::durations_data()
{
    QTest::addColumn<double>("time");
    QTest::addColumn<QString>("expected");
    QTest::newRow("nothing") << 0.0 << "0 ms";
    QTest::newRow("below a second") << 999.4 << "999 ms";
    QTest::newRow("rounded to a second") << 999.6 << "1 s";
    QTest::newRow("three digits") << 49837.0 << "49.8 s";
    QTest::newRow("rounded to a minute") << 59500.0 << "1 min";
    QTest::newRow("minutes") << 137000.0 << "2 min 17 s";
    QTest::newRow("rounded to an hour") << 3599600.0 << "1 h";
    QTest::newRow("hours") << 4.0e6 << "1 h 7 min";
    QTest::newRow("a day") << 86.4e6 << "1 d";
    QTest::newRow("days") << 1e9 << "11 d 14 h";
}

void TstRevisitTime::durations()
{
    QFETCH(double, time);
    QTEST(Session::durationText(time), "expected");
}

QTEST_GUILESS_MAIN(TstRevisitTime)
#include "tst_revisittime.moc"
