#include "station.h"

#include <session/resourcereport.h>
#include <session/savefile.h>
#include <support/testmain.h>
#include <sys/stat.h>

using namespace Session;

class TstResourceReport : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void theStationIsClean();
    void verdictsAreThoseOfTheLibrary();
    void verdicts_data();
    void verdicts();
    void whatIsNoFileIsNotOpened_data();
    void whatIsNoFileIsNotOpened();
    void values_data();
    void values();
    void componentsAndSets_data();
    void componentsAndSets();
    void filesTogether_data();
    void filesTogether();
    void filesThatWereNotAcceptedAreNotThere();
    void filesOfAFolderInItsOrder();

private:
    QString write(const QString& name, const QString& text)
    {
        saveFile(m_folder->filePath(name), text.toUtf8(), nullptr);
        return m_folder->filePath(name);
    }
    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {
const char* const VERDICTS[] = {"accepted", "outdated", "skipped"};

QString tunerFile(const QString& attributes, const QString& content = QString())
{
    return QString("<TunerProperties name='N' type='HT720' quantity='1' %1>%2</TunerProperties>")
        .arg(attributes, content);
}

// A file with one value item, in line 2.
QString withItem(const QString& item)
{
    return tunerFile("baseresource='B'",
                     QString("<Component type='T' name='TunerSettingsComponent'><Node id='TunerSettings'>"
                             "<ValueItem>\n%1</ValueItem></Node></Component>")
                         .arg(item));
}

// Findings without their places.
QStringList texts(const Findings& findings)
{
    QStringList result;
    for (const Finding& finding : findings)
        result.append(finding.text);
    return result;
}
} // namespace

void TstResourceReport::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void TstResourceReport::theStationIsClean()
{
    QList<ResourceFile> files;
    for (const QString& path : resourceFiles(JED_SOURCE_DIR "/installation/TemplateFolder"))
        files.append(examineResourceFile(path));
    compareResourceFiles(&files);
    QVERIFY(files.size() >= 14);
    for (const ResourceFile& file : files) {
        QCOMPARE(JedTest::textOf(file.findings), QString());
        QCOMPARE(VERDICTS[file.verdict], "accepted");
    }
}

void TstResourceReport::verdictsAreThoseOfTheLibrary()
{
    for (const QString& path : resourceFiles(JED_SOURCE_DIR "/tests/data/tuner")) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
        const JEDVEPLUGIN::ResourceDescription description(decodedText(file.readAll()));
        const ResourceFile examined = examineResourceFile(path);
        QCOMPARE(examined.verdict == ResourceFile::ACCEPTED, description.isValid());
        QCOMPARE(examined.verdict == ResourceFile::OUTDATED,
                 !description.isValid() && !description.getVersion().isEmpty());
        QVERIFY2(examined.verdict == ResourceFile::ACCEPTED || !examined.findings.isEmpty(),
                 qPrintable(path));
        QCOMPARE(bool(examined.description), description.isValid());
    }
}

void TstResourceReport::verdicts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("verdict");
    QTest::addColumn<QString>("findings"); // FILE stands for the path.
    const QString outdated =
        "FILE:1:1: error: version \"%1\" is outdated, 1.1 or later is needed\n    The library skips "
        "the file and warns. Export the tuner properties again.";
    const QString skipped = "\n    The library skips the file. Mend it, or export it again.";
    QTest::newRow("no version") << tunerFile("baseresource='B'") << "accepted"
                                << "";
    QTest::newRow("version 1.1") << tunerFile("baseresource='B' version='1.1'") << "accepted"
                                 << "";
    QTest::newRow("version 1.0") << tunerFile("baseresource='B' version='1.0'") << "outdated"
                                 << outdated.arg("1.0");
    QTest::newRow("version abc") << tunerFile("baseresource='B' version='abc'") << "outdated"
                                 << outdated.arg("abc");
    QTest::newRow("cut off") << QString("<TunerProperties>\n<Comp") << "skipped"
                             << "FILE:2:5: error: Premature end of document." + skipped;
    QTest::newRow("other root") << QString("<Job/>") << "skipped"
                                << "FILE:1:6: error: The root is <Job> instead of <TunerProperties>" +
                                       skipped;
    QTest::newRow("against the schema")
        << QString("<TunerProperties name='N' type='HT720' baseresource='B'/>") << "accepted"
        << "FILE:1:56: warning: Element 'TunerProperties': The attribute 'quantity' is required but "
           "missing.\n"
           "    The library takes the file all the same; what it does not understand is left out.";
}

void TstResourceReport::verdicts()
{
    QFETCH(QString, text);
    const QString path = write("one.xml", text);
    const ResourceFile file = examineResourceFile(path);
    QTEST(QString(VERDICTS[file.verdict]), "verdict");
    QTEST(JedTest::textOf(file.findings).replace(path, "FILE"), "findings");
}

void TstResourceReport::whatIsNoFileIsNotOpened_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("pipe") << "pipe"
                          << "cannot be read: it is no regular file";
    QTest::newRow("device") << "device"
                            << "cannot be read: it is no regular file";
    QTest::newRow("missing") << "missing"
                             << "cannot be read: there is no such file";
}

void TstResourceReport::whatIsNoFileIsNotOpened()
{
    QFETCH(QString, name);
    QCOMPARE(mkfifo(QFile::encodeName(m_folder->filePath("pipe")).constData(), 0600), 0);
    QVERIFY(QFile::link("/dev/zero", m_folder->filePath("device")));
    const ResourceFile file = examineResourceFile(m_folder->filePath(name));
    QCOMPARE(VERDICTS[file.verdict], "skipped");
    QTEST(texts(file.findings).join('\n'), "reason");
}

void TstResourceReport::values_data()
{
    QTest::addColumn<QString>("item");
    QTest::addColumn<QString>("fault"); // Empty: none.
    QTest::newRow("boolean") << "<ValueBoolean id='Preselector' value='true'/>"
                             << "";
    QTest::newRow("float") << "<ValueFloat id='Threshold' value='8.5'/>"
                           << "";
    QTest::newRow("float outside")
        << "<ValueFloat id='Threshold' value='161'/>"
        << "Threshold: the default 161 dBµV is outside -60 dBµV … 160 dBµV, which a job file can hold";
    QTest::newRow("int") << "<ValueInt id='Attenuation' value='90'/>"
                         << "";
    QTest::newRow("int outside")
        << "<ValueInt id='Attenuation' value='91'/>"
        << "Attenuation: the default 91 dB is outside 0 dB … 90 dB, which a job file can hold";
    QTest::newRow("int64") << "<ValueInt64 id='CenterFrequency' value='40000000000'/>"
                           << "";
    QTest::newRow("int64 outside")
        << "<ValueInt64 id='CenterFrequency' value='-1'/>"
        << "CenterFrequency: the default -1 Hz is outside 0 Hz … 40 GHz, which a job file can hold";
    QTest::newRow("numeric") << "<ValueNumericInt id='Attenuation' value='0' min='0' max='40' step='5'/>"
                             << "";
    QTest::newRow("default at the upper bound")
        << "<ValueNumericInt id='Attenuation' value='40' min='0' max='40'/>"
        << "";
    QTest::newRow("default above") << "<ValueNumericInt id='Attenuation' value='41' min='0' max='40'/>"
                                   << "Attenuation: the default 41 dB is outside the range 0 dB … 40 dB";
    QTest::newRow("default below")
        << "<ValueNumericFloat id='Threshold' value='-21.5' min='-20' max='120'/>"
        << "Threshold: the default -21.5 dBµV is outside the range -20 dBµV … 120 dBµV";
    QTest::newRow("empty range")
        << "<ValueNumericInt64 id='CenterFrequency' value='5' min='2000' max='1000'/>"
        << "CenterFrequency: the range 2 kHz … 1 kHz is empty";
    QTest::newRow("negative step")
        << "<ValueNumericInt id='Attenuation' value='0' min='0' max='40' step='-5'/>"
        << "Attenuation: the step -5 dB is negative";
    QTest::newRow("range too wide")
        << "<ValueNumericInt id='Attenuation' value='0' min='0' max='91' step='5'/>"
        << "Attenuation: the range 0 dB … 91 dB reaches beyond 0 dB … 90 dB, which a job file can hold";
    QTest::newRow("selection")
        << "<ValueSelection id='AttenuationMode' index='1'><SelectionItem name='Automatic' value='0'/>"
           "<SelectionItem name='Manual' value='1'/></ValueSelection>"
        << "";
    QTest::newRow("selection beyond its items")
        << "<ValueSelection id='AttenuationMode' index='1'><SelectionItem name='Manual' "
           "value='0'/></ValueSelection>"
        << "AttenuationMode: the default is item 1 of 1";
    QTest::newRow("selection with a name of no meaning")
        << "<ValueSelection id='AttenuationMode' index='0'><SelectionItem name='Off' "
           "value='0'/></ValueSelection>"
        << "AttenuationMode: the item \"Off\" is none of Automatic, Manual, LowNoise, LowDistortion";
    QTest::newRow("string") << "<ValueString id='ChannelName' value='16'/>"
                            << "";
    QTest::newRow("list") << "<ValueStringList id='ChannelName'><StringItem value='16'/></ValueStringList>"
                          << "";
    QTest::newRow("no field") << "<ValueString id='ChannelNames' value='16'/>"
                              << "TunerSettings has no field \"ChannelNames\"";
    QTest::newRow("two values") << "<ValueString id='ChannelName' value='16'/></ValueItem><ValueItem>"
                                   "<ValueString id='ChannelName' value='17'/>"
                                << "TunerSettings has two values \"ChannelName\"";
}

void TstResourceReport::values()
{
    QFETCH(QString, item);
    const ResourceFile file = examineResourceFile(write("one.xml", withItem(item)));
    QCOMPARE(VERDICTS[file.verdict], "accepted");
    QTEST(texts(file.findings).join('\n'), "fault");
    for (const Finding& finding : file.findings)
        QVERIFY(finding.line > 0 && finding.column > 0);
}

void TstResourceReport::componentsAndSets_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("findings"); // FILE stands for the path.
    QTest::newRow("mistyped component")
        << "\n  <Component type='T' name='TunerSettingsComponnt'/>"
        << "FILE:2:3: warning: no component is called \"TunerSettingsComponnt\"\n    Did you mean "
           "\"TunerSettingsComponent\"?";
    QTest::newRow("case of a component does not matter")
        << "<Component type='T' name='tunersettingscomponent'/>"
        << "";
    QTest::newRow("mistyped set")
        << "<Component type='T' name='ADemComponent'>\n<Node id='ADemSetting'/></Component>"
        << "FILE:2:1: warning: there is no parameter set \"ADemSetting\"\n    Did you mean \"ADemSettings\"?";
    QTest::newRow("mistyped field")
        << "<Component type='T' name='ADemComponent'>\n<Node id='ADemSettings'><ValueItem><ValueInt "
           "id='Volme' "
           "value='1'/></ValueItem></Node></Component>"
        << "FILE:2:25: warning: ADemSettings has no field \"Volme\"\n    Did you mean \"Volume\"?";
}

void TstResourceReport::componentsAndSets()
{
    QFETCH(QString, content);
    const QString path = write("one.xml", tunerFile("baseresource='B'", content));
    QTEST(JedTest::textOf(examineResourceFile(path).findings).replace(path, "FILE"), "findings");
}

void TstResourceReport::filesTogether_data()
{
    QTest::addColumn<QStringList>("attributes"); // Of files 1, 2, 3.
    QTest::addColumn<QString>("findings");       // "1.xml" stands for the path.
    QTest::newRow("one") << QStringList{"baseresource='A'"} << "";
    QTest::newRow("twice")
        << QStringList{"baseresource='A'", "baseresource='A'"}
        << "2.xml:1:1: error: HT720/A is described by 1.xml already\n    Take one of the two files away, "
           "or give it another base resource.";
    QTest::newRow("parent there") << QStringList{"baseresource='A' parentBaseResource='B'",
                                                 "baseresource='B'"}
                                  << "";
    QTest::newRow("parent missing")
        << QStringList{"baseresource='A' parentBaseResource='RACK-2'", "baseresource='RACK-1'"}
        << "1.xml:1:1: warning: the parent \"RACK-2\" is not among the resources of type HT720\n"
           "    The resource counts as one without a parent. Did you mean \"RACK-1\"?";
    QTest::newRow("own parent")
        << QStringList{"baseresource='A' parentBaseResource='A'"}
        << "1.xml:1:1: warning: the parents of HT720/A lead back to it\n    Take the parent out of "
           "one of the files in the circle.";
    QTest::newRow("circle of two and one that leads into it")
        << QStringList{"baseresource='A' parentBaseResource='B'", "baseresource='B' parentBaseResource='A'",
                       "baseresource='C' parentBaseResource='B'"}
        << "1.xml:1:1: warning: the parents of HT720/A lead back to it\n    Take the parent out of one of "
           "the files in the "
           "circle.\n2.xml:1:1: warning: the parents of HT720/B lead back to it\n    Take the parent out of "
           "one of the files "
           "in the circle.";
    QTest::newRow("connectable there")
        << QStringList{"baseresource='A' connectableResources=',B,,'", "baseresource='B'"} << "";
    QTest::newRow("connectable missing")
        << QStringList{"baseresource='A' connectableResources='B,CH-2'", "baseresource='B'",
                       "baseresource='CH-1'"}
        << "1.xml:1:1: warning: the connectable resource \"CH-2\" is not there\n    Did you mean \"CH-1\"?";
}

void TstResourceReport::filesTogether()
{
    QFETCH(QStringList, attributes);
    QList<ResourceFile> files;
    for (int i = 0; i < attributes.size(); ++i)
        files.append(examineResourceFile(write(QString("%1.xml").arg(i + 1), tunerFile(attributes.at(i)))));
    compareResourceFiles(&files);
    QStringList found;
    for (const ResourceFile& file : files) {
        if (!file.findings.isEmpty())
            found.append(JedTest::textOf(file.findings).remove(m_folder->path() + '/'));
    }
    QTEST(found.join('\n'), "findings");
}

void TstResourceReport::filesThatWereNotAcceptedAreNotThere()
{
    QList<ResourceFile> files{
        examineResourceFile(write("1.xml", tunerFile("baseresource='A' version='1.0'"))),
        examineResourceFile(write("2.xml", tunerFile("baseresource='A'"))),
        examineResourceFile(write("3.xml", tunerFile("baseresource='C' parentBaseResource='D'"))),
        examineResourceFile(write("4.xml", tunerFile("baseresource='D' version='1.0'")))};
    compareResourceFiles(&files);
    QCOMPARE(files.at(1).findings.size(), 0);
    QCOMPARE(texts(files.at(2).findings),
             QStringList{"the parent \"D\" is not among the resources of type HT720"});
}

void TstResourceReport::filesOfAFolderInItsOrder()
{
    write("b.xml", "");
    write("A.txt", "");
    write(".hidden", "");
    QVERIFY(QDir(m_folder->path()).mkdir("folder"));
    QCOMPARE(resourceFiles(m_folder->path()),
             QStringList({m_folder->filePath("A.txt"), m_folder->filePath("b.xml")}));
    QCOMPARE(resourceFiles(m_folder->filePath("none")), QStringList());
    QCOMPARE(resourceFiles(""), QStringList());
}

JED_TEST_MAIN(TstResourceReport)
#include "tst_resourcereport.moc"
