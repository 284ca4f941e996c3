#include "jedcommonhelper.h"

#include <support/tracerecorder.h>
#include <values/node.h>
#include <values/value.h>

#include <QTemporaryDir>

#if defined(Q_OS_UNIX)
#include <sys/stat.h>
#endif

using JEDVE::enJOB_TYPE;
using JEDVEPLUGIN::JEDCommonHelper;
using JobXml::Subjob;
using XmlJobType = JobXml::JobInformation::JobType;

namespace {

const QStringList JOB_TYPES = {"Production", "Search", "Surveillance", "DFScan", "Measurement"};

/// The text below the node's "PGXML", a null string if there is none.
QString pgxmlText(const Node& node)
{
    const auto* value =
        dynamic_cast<Value<QString, FormatString<QString>, StreamFormat<QString, FormatString<QString>>>*>(
            node.GetChild("PGXML"));
    return value ? value->GetValue() : QString();
}

QString written(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write a file of the test");
    return path;
}

} // namespace

class TstJobTypes : public QObject
{
    Q_OBJECT
private slots:
    void jobTypeNames();
    void unknownJobTypeName_data();
    void unknownJobTypeName();
    void unknownJobTypeNumber_data();
    void unknownJobTypeNumber();
    void jobTypesOfTheJobFile();
    void jobTypeTravelsAsAVariant();

    void settingHashKey_data();
    void settingHashKey();
    void keyParts_data();
    void keyParts();
    void keyMayBeOneOfTheResults();

    void sizeString_data();
    void sizeString();

    void allowedStartupModes();
    void restrictedStartupModes_data();
    void restrictedStartupModes();
    void startupModeTexts();
    void unknownStartupModeStays();

    void pgxmlFromString();
    void pgxmlFromStringWithoutNode();
    void pgxmlFromFile_data();
    void pgxmlFromFile();
    void pgxmlFromFileWithoutNode();
    void pgxmlFromUnreadableFile_data();
    void pgxmlFromUnreadableFile();
    void pgxmlTraceFollowsTheMask_data();
    void pgxmlTraceFollowsTheMask();
};

void TstJobTypes::jobTypeNames()
{
    for (int number = 0; number < JOB_TYPES.size(); ++number) {
        QCOMPARE(int(JEDCommonHelper::StringToJobType(JOB_TYPES.at(number))), number);
        QCOMPARE(JEDCommonHelper::JobTypeToString(static_cast<enJOB_TYPE>(number)), JOB_TYPES.at(number));
    }
    QCOMPARE(int(JEDVE::JOB_TYPE_PRODUCTION), 0);
    QCOMPARE(int(JEDVE::JOB_TYPE_SEARCH), 1);
    QCOMPARE(int(JEDVE::JOB_TYPE_SURVEILLANCE), 2);
    QCOMPARE(int(JEDVE::JOB_TYPE_DF_SCAN), 3);
    QCOMPARE(int(JEDVE::JOB_TYPE_MEASUREMENT), 4);
}

void TstJobTypes::unknownJobTypeName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("lower case") << "production";
    QTest::newRow("empty") << "";
    QTest::newRow("null") << QString();
    QTest::newRow("blank behind") << "Search ";
    QTest::newRow("part") << "Sear";
    QTest::newRow("two words") << "DF Scan";
    QTest::newRow("number") << "1";
}

void TstJobTypes::unknownJobTypeName()
{
    QFETCH(QString, name);
    QCOMPARE(int(JEDCommonHelper::StringToJobType(name)), -1);
}

void TstJobTypes::unknownJobTypeNumber_data()
{
    QTest::addColumn<int>("number");
    for (const int number : {-1, 5, -2, INT_MAX, INT_MIN})
        QTest::newRow(qPrintable(QString::number(number))) << number;
}

void TstJobTypes::unknownJobTypeNumber()
{
    QFETCH(int, number);
    QVERIFY(JEDCommonHelper::JobTypeToString(static_cast<enJOB_TYPE>(number)).isNull());
    QCOMPARE(int(JEDCommonHelper::jobXmlTypeToJobType(static_cast<XmlJobType>(number))), -1);
    QCOMPARE(int(JEDCommonHelper::JobTypeToJobXmlType(static_cast<enJOB_TYPE>(number))), -1);
}

void TstJobTypes::jobTypesOfTheJobFile()
{
    for (int number = 0; number < JOB_TYPES.size(); ++number) {
        QCOMPARE(int(JEDCommonHelper::jobXmlTypeToJobType(static_cast<XmlJobType>(number))), number);
        QCOMPARE(int(JEDCommonHelper::JobTypeToJobXmlType(static_cast<enJOB_TYPE>(number))), number);
        QCOMPARE(JobXml::JobInformation::JobTypeToName(static_cast<XmlJobType>(number)),
                 JOB_TYPES.at(number));
    }
}

void TstJobTypes::jobTypeTravelsAsAVariant()
{
    const QVariant variant = QVariant::fromValue(JEDVE::JOB_TYPE_DF_SCAN);
    QCOMPARE(variant.value<enJOB_TYPE>(), JEDVE::JOB_TYPE_DF_SCAN);
    QCOMPARE(QByteArray(variant.typeName()), QByteArray("JEDVE::enJOB_TYPE"));
}

void TstJobTypes::settingHashKey_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<QString>("key");
    QTest::newRow("two parts") << "ScanSettings"
                               << "Receiver 1"
                               << "ScanSettings@Receiver 1";
    QTest::newRow("second empty") << "A"
                                  << ""
                                  << "A@";
    QTest::newRow("first empty") << ""
                                 << "B"
                                 << "@B";
    QTest::newRow("both null") << QString() << QString() << "@";
    QTest::newRow("nothing is escaped") << "A@B"
                                        << "C@"
                                        << "A@B@C@";
    QTest::newRow("placeholders stay") << "%1"
                                       << "%2"
                                       << "%1@%2";
}

void TstJobTypes::settingHashKey()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(QString, key);
    QCOMPARE(JEDCommonHelper::createSettingHashKey(first, second), key);
}

void TstJobTypes::keyParts_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::newRow("two parts") << "A@B"
                               << "A"
                               << "B";
    QTest::newRow("second empty") << "A@"
                                  << "A"
                                  << "";
    QTest::newRow("first empty") << "@B"
                                 << ""
                                 << "B";
    QTest::newRow("no separator") << "A"
                                  << "A"
                                  << "";
    QTest::newRow("three parts") << "A@B@C"
                                 << "A"
                                 << "B";
    QTest::newRow("empty part between") << "A@@C"
                                        << "A"
                                        << "";
    QTest::newRow("separator alone") << "@"
                                     << ""
                                     << "";
    QTest::newRow("empty") << ""
                           << ""
                           << "";
    QTest::newRow("blanks stay") << " A @ B "
                                 << " A "
                                 << " B ";
}

void TstJobTypes::keyParts()
{
    QFETCH(QString, key);
    QString first = "before";
    QString second = "before";
    JEDCommonHelper::parseSettingHashKey(key, first, second);
    QTEST(first, "first");
    QTEST(second, "second");
}

void TstJobTypes::keyMayBeOneOfTheResults()
{
    QString key = "A@B";
    QString second;
    JEDCommonHelper::parseSettingHashKey(key, key, second);
    QCOMPARE(key + "|" + second, QString("A|B"));
    key = "A@B";
    QString first;
    JEDCommonHelper::parseSettingHashKey(key, first, key);
    QCOMPARE(first + "|" + key, QString("A|B"));
}

void TstJobTypes::sizeString_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QSize>("size");
    const QSize invalid(-1, -1);
    QTest::newRow("usual") << "640x480" << QSize(640, 480);
    QTest::newRow("least") << "1x1" << QSize(1, 1);
    QTest::newRow("greatest") << "2147483647x1" << QSize(INT_MAX, 1);
    QTest::newRow("beyond the greatest") << "2147483648x1" << invalid;
    QTest::newRow("capital x") << "640X480" << invalid;
    QTest::newRow("no width") << "x480" << invalid;
    QTest::newRow("no height") << "640x" << invalid;
    QTest::newRow("no x") << "640" << invalid;
    QTest::newRow("empty") << "" << invalid;
    QTest::newRow("x alone") << "x" << invalid;
    QTest::newRow("zero width") << "0x5" << invalid;
    QTest::newRow("zero height") << "5x0" << invalid;
    QTest::newRow("negative width") << "-5x5" << invalid;
    QTest::newRow("negative height") << "5x-5" << invalid;
    QTest::newRow("two x") << "640xx480" << QSize(640, 480);
    QTest::newRow("x in front") << "x640x480" << QSize(640, 480);
    QTest::newRow("x behind") << "640x480x" << QSize(640, 480);
    QTest::newRow("three parts") << "640x480x2" << invalid;
    QTest::newRow("blank in front") << " 640x480" << invalid;
    QTest::newRow("blank behind") << "640x480 " << invalid;
    QTest::newRow("blank before x") << "640 x480" << invalid;
    QTest::newRow("blank behind x") << "640x 480" << invalid;
    QTest::newRow("tab in front") << "\t640x480" << invalid;
    QTest::newRow("line end behind") << "640x480\n" << invalid;
    QTest::newRow("letter") << "64ax480" << invalid;
    QTest::newRow("hexadecimal") << "0x10x480" << invalid;
    QTest::newRow("leading zeros") << "010x0480" << QSize(10, 480);
    QTest::newRow("plus sign") << "+5x+6" << QSize(5, 6);
    QTest::newRow("fraction") << "5.0x6" << invalid;
}

void TstJobTypes::sizeString()
{
    QFETCH(QString, text);
    QTEST(JEDCommonHelper::parseSizeString(text), "size");
}

void TstJobTypes::allowedStartupModes()
{
    for (int number = -1; number < 6; ++number) {
        const auto type = static_cast<enJOB_TYPE>(number);
        const bool isLimited = number == 2;
        QCOMPARE(JEDCommonHelper::allowedStartupModes(type).size(), isLimited ? 1 : 0);
        QCOMPARE(JEDCommonHelper::allowedStartupModeString(type).size(), isLimited ? 1 : 0);
    }
    QCOMPARE(int(JEDCommonHelper::allowedStartupModes(JEDVE::JOB_TYPE_SURVEILLANCE).first()), 3);
    QVERIFY(Subjob::GetStartupModes().size() > 3);
    QCOMPARE(JEDCommonHelper::allowedStartupModeString(JEDVE::JOB_TYPE_SURVEILLANCE),
             QStringList(Subjob::GetStartupModes().at(3)));
}

void TstJobTypes::restrictedStartupModes_data()
{
    QTest::addColumn<QStringList>("modes");
    QTest::addColumn<QStringList>("allowed");
    QTest::addColumn<QStringList>("restricted");
    const QStringList none;
    QTest::newRow("no limit") << QStringList{"x", "y"} << none << QStringList{"x", "y"};
    QTest::newRow("one allowed") << QStringList{"x", "y"} << QStringList{"y"} << QStringList{"y"};
    QTest::newRow("order of the modes")
        << QStringList{"x", "y", "z"} << QStringList{"z", "x"} << QStringList{"x", "z"};
    QTest::newRow("duplicates stay") << QStringList{"x", "y", "x"} << QStringList{"x"}
                                     << QStringList{"x", "x"};
    QTest::newRow("duplicates without limit") << QStringList{"x", "x"} << none << QStringList{"x", "x"};
    QTest::newRow("case counts") << QStringList{"x", "X"} << QStringList{"X"} << QStringList{"X"};
    QTest::newRow("none of them") << QStringList{"x"} << QStringList{"y"} << none;
    QTest::newRow("no modes") << none << QStringList{"y"} << none;
    QTest::newRow("nothing at all") << none << none << none;
}

void TstJobTypes::restrictedStartupModes()
{
    QFETCH(QStringList, modes);
    QFETCH(QStringList, allowed);
    QTEST(JEDCommonHelper::restrictedStartupModes(modes, allowed), "restricted");
}

void TstJobTypes::startupModeTexts()
{
    const QStringList names = Subjob::GetStartupModes();
    const QStringList texts = Subjob::GetGUIStartupModes();
    QCOMPARE(names.size(), texts.size());
    for (int i = 0; i < names.size(); ++i) {
        QVERIFY(names.at(i) != texts.at(i));
        QCOMPARE(JEDCommonHelper::startupModeToGUI(names.at(i)), texts.at(i));
        QCOMPARE(JEDCommonHelper::startupModeFromGUI(texts.at(i)), names.at(i));
    }
    QCOMPARE(JEDCommonHelper::startupModesToGUI(names), texts);
    QCOMPARE(JEDCommonHelper::startupModesToGUI({names.at(2), "unknown", names.at(0), names.at(2)}),
             QStringList({texts.at(2), "unknown", texts.at(0), texts.at(2)}));
    QCOMPARE(JEDCommonHelper::startupModesToGUI({}), QStringList());
}

void TstJobTypes::unknownStartupModeStays()
{
    const QString name = Subjob::GetStartupModes().first();
    const QString text = Subjob::GetGUIStartupModes().first();
    for (const QString& other : {QString("no such mode"), QString(), text, name.toUpper(), name + " "})
        QCOMPARE(JEDCommonHelper::startupModeToGUI(other), other);
    for (const QString& other : {QString("no such text"), QString(), name, text.toUpper(), text + " "})
        QCOMPARE(JEDCommonHelper::startupModeFromGUI(other), other);
}

void TstJobTypes::pgxmlFromString()
{
    Node node;
    JEDCommonHelper::createPGXMLVTElementFromString(&node, "<PG>\xC3\xA9</PG>");
    QCOMPARE(node.GetValueCount(), 1);
    ValueBase* value = node.GetChild("PGXML");
    QVERIFY(value);
    QCOMPARE(value->GetName(), QString("PGXML"));
    QCOMPARE(value->GetId(), QString("PGXML"));
    QCOMPARE(int(value->GetState()), 0);
    QCOMPARE(value->GetParent(), &node);
    QCOMPARE(pgxmlText(node), QString::fromUtf8("<PG>\xC3\xA9</PG>"));

    JEDCommonHelper::createPGXMLVTElementFromString(&node, "");
    QCOMPARE(node.GetValueCount(), 2);
    QCOMPARE(node.GetValues().at(1)->GetName(), QString("PGXML"));
    QCOMPARE(node.GetValues().at(1)->GetText(), QString());
    // The key was left empty, so the value is found by its own name whatever that is.
    QVERIFY(value->SetName("Other"));
    QCOMPARE(node.GetChild("Other"), value);
}

void TstJobTypes::pgxmlFromStringWithoutNode()
{
    JedTest::TraceRecorder recorder;
    JEDCommonHelper::createPGXMLVTElementFromString(nullptr, "text");
    QCOMPARE(recorder.take(), QStringList());
}

void TstJobTypes::pgxmlFromFile_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << QByteArray("<PG/>") << "<PG/>";
    QTest::newRow("empty") << QByteArray() << "";
    QTest::newRow("UTF-8") << QByteArray("<P>\xC2\xB5V</P>") << QString::fromUtf8("<P>\xC2\xB5V</P>");
    QTest::newRow("text mode") << QByteArray("a\r\nb\nc") << "a\nb\nc";
    QTest::newRow("no UTF-8") << QByteArray("a\xFFz")
                              << QString("a") + QChar(QChar::ReplacementCharacter) + "z";
    QTest::newRow("longer than one read") << QByteArray(200000, 'x') << QString(200000, 'x');
}

void TstJobTypes::pgxmlFromFile()
{
    QFETCH(QByteArray, bytes);
    QTemporaryDir folder;
    JedTest::TraceRecorder recorder;
    Node node;
    JEDCommonHelper::createPGXMLVTElement(&node, written(folder.filePath("pg.xml"), bytes));
    QCOMPARE(node.GetValueCount(), 1);
    QTEST(pgxmlText(node), "text");
    QCOMPARE(recorder.take(), QStringList());
}

void TstJobTypes::pgxmlFromFileWithoutNode()
{
    QTemporaryDir folder;
    JedTest::TraceRecorder recorder;
    JEDCommonHelper::createPGXMLVTElement(nullptr, written(folder.filePath("pg.xml"), "<PG/>"));
    QCOMPARE(recorder.take(), QStringList());
    JEDCommonHelper::createPGXMLVTElement(nullptr, folder.filePath("absent.xml"));
    QCOMPARE(recorder.take().size(), 1);
}

void TstJobTypes::pgxmlFromUnreadableFile_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("absent") << "absent";
    QTest::newRow("placeholder in the name") << "with %1 and %2";
    QTest::newRow("folder") << "folder";
#if defined(Q_OS_UNIX)
    QTest::newRow("pipe") << "pipe";
    QTest::newRow("link to an endless device") << "device";
#endif
    QTest::newRow("above 64 MiB") << "huge";
}

void TstJobTypes::pgxmlFromUnreadableFile()
{
    QFETCH(QString, kind);
    QTemporaryDir folder;
    const QString path = folder.filePath(kind);
    if (kind == "folder")
        QVERIFY(QDir(folder.path()).mkdir(kind));
#if defined(Q_OS_UNIX)
    if (kind == "pipe")
        QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    if (kind == "device")
        QVERIFY(QFile::link("/dev/zero", path));
#endif
    if (kind == "huge") {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(64 * 1024 * 1024 + 1));
    }
    JedTest::TraceRecorder recorder;
    Node node;
    JEDCommonHelper::createPGXMLVTElement(&node, path);
    QCOMPARE(node.GetValueCount(), 0);
    QCOMPARE(recorder.take(), QStringList("jedcommonhelper:188: cannot open PGXML file: " + path));
}

void TstJobTypes::pgxmlTraceFollowsTheMask_data()
{
    QTest::addColumn<quint32>("mask");
    QTest::addColumn<int>("traces");
    QTest::newRow("errors") << 0x20u << 1;
    QTest::newRow("errors among others") << 0xFFu << 1;
    QTest::newRow("job types only") << 0x40u << 0;
    QTest::newRow("all but errors") << ~0x20u << 0;
    QTest::newRow("nothing") << 0u << 0;
}

void TstJobTypes::pgxmlTraceFollowsTheMask()
{
    QFETCH(quint32, mask);
    JedTest::TraceRecorder recorder;
    const JedTest::TraceMask masked(mask);
    JEDCommonHelper::createPGXMLVTElement(nullptr, "/no such file");
    QTEST(recorder.take().size(), "traces");
}

QTEST_GUILESS_MAIN(TstJobTypes)
#include "tst_jobtypes.moc"
