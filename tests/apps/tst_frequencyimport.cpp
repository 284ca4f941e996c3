#include <freqstorexml/filehandling.h>
#include <freqstorexml/frequencystore.h>
#include <jobprofilefactory.h>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <session/frequencyimport.h>
#include <session/savefile.h>

using FreqStoreXml::Audio_Settings;
using FreqStoreXml::FrequencyStoreEntry;
using FreqStoreXml::FrequencyStoreList;
using Session::FrequencyImport;
using Session::ImportedLine;

namespace {
const char* const LISTS = JED_SOURCE_DIR "/tests/data/lists/";
constexpr int MOST_TIME = 1000; // For one list, in ms.

const char* const GQRX_HEADER = "# Frequency ; Name ; Modulation ; Bandwidth; Tags\n";
const char* const CHIRP_HEADER = "Location,Name,Frequency,Mode\n";

QByteArray content(const QString& name)
{
    QByteArray bytes;
    if (!Session::readFile(LISTS + name, &bytes, nullptr))
        qFatal("no list %s", qPrintable(name));
    return bytes;
}

// "line name: becomes" for each entry, then what the list as a whole is refused for.
QStringList outcome(const FrequencyImport& import)
{
    QStringList result;
    for (const ImportedLine& line : import.lines)
        result.append(QString("%1 %2: %3").arg(QString::number(line.line), line.name, line.becomes()));
    if (!import.failure.isEmpty())
        result.append(QString("%1 list: %2").arg(QString::number(import.failureLine), import.failure));
    return result;
}

QStringList outcome(const QString& format, const QByteArray& bytes)
{
    return outcome(Session::importFrequencies(bytes, format));
}

// A list of one entry in each format; texts as the format writes them.
QByteArray gqrxLine(const QByteArray& frequency, const QByteArray& mode, const QByteArray& bandwidth)
{
    return GQRX_HEADER + frequency + "; Name; " + mode + "; " + bandwidth + "; Tag\n";
}
QByteArray sdrsharpEntry(const QByteArray& frequency, const QByteArray& mode, const QByteArray& bandwidth)
{
    return "<ArrayOfMemoryEntry><MemoryEntry><Name>Name</Name><Frequency>" + frequency +
           "</Frequency><DetectorType>" + mode + "</DetectorType><FilterBandwidth>" + bandwidth +
           "</FilterBandwidth></MemoryEntry></ArrayOfMemoryEntry>";
}
QByteArray sdrppEntry(const QByteArray& frequency, const QByteArray& mode, const QByteArray& bandwidth)
{
    return "{\"bookmarks\": {\"Name\": {\"frequency\": " + frequency + ", \"mode\": " + mode +
           ", \"bandwidth\": " + bandwidth + "}}}";
}
QByteArray chirpLine(const QByteArray& frequency, const QByteArray& mode, const QByteArray& = QByteArray())
{
    return CHIRP_HEADER + QByteArray("0,Name,") + frequency + ',' + mode + '\n';
}

using Maker = QByteArray (*)(const QByteArray&, const QByteArray&, const QByteArray&);
const QHash<QString, Maker> MAKERS{
    {"gqrx", gqrxLine}, {"sdrsharp", sdrsharpEntry}, {"sdrpp", sdrppEntry}, {"chirp", chirpLine}};
} // namespace

class TstFrequencyImport : public QObject
{
    Q_OBJECT
private slots:
    void samples_data();
    void samples();
    void damagedFiles_data();
    void damagedFiles();
    void lineEndsMakeNoDifference_data();
    void lineEndsMakeNoDifference();
    void modesAreTranslated_data();
    void modesAreTranslated();
    void frequenciesAreExact_data();
    void frequenciesAreExact();
    void bandwidths_data();
    void bandwidths();
    void columnsAreFoundByTheHeader();
    void namesAreTakenAsTheyAre_data();
    void namesAreTakenAsTheyAre();
    void fiveHundredEntries_data();
    void fiveHundredEntries();
    void theListIsValid_data() { formats(); }
    void theListIsValid();
    void formatsAreGuessed_data();
    void formatsAreGuessed();
    void hostileContent_data();
    void hostileContent();
    void damagedAtRandom_data() { formats(); }
    void damagedAtRandom();
    void tooManyEntries();
    void whatIsNoFile();
    void readingIsStopped_data() { formats(); }
    void readingIsStopped();

private:
    static void formats();
    static QByteArray many(const QString& format, int count);
};

void TstFrequencyImport::formats()
{
    QTest::addColumn<QString>("file");
    for (const char* file : {"gqrx.csv", "sdrsharp.xml", "sdrpp.json", "chirp.csv"})
        QTest::newRow(QByteArray(file).split('.').first()) << QString(file);
}

// A list with entries "Station 1" on 100.001 MHz and so on.
QByteArray TstFrequencyImport::many(const QString& format, int count)
{
    QByteArray text;
    for (int i = 1; i <= count; ++i) {
        const QByteArray name = "Station " + QByteArray::number(i);
        const QByteArray hertz = QByteArray::number(100000000 + i * 1000);
        if (format == "gqrx")
            text += hertz + "; " + name + " ; Narrow FM ; 12500; Untagged\n";
        else if (format == "sdrsharp")
            text += "  <MemoryEntry>\n<Name>" + name + "</Name><Frequency>" + hertz +
                    "</Frequency><DetectorType>NFM</DetectorType><FilterBandwidth>12500</FilterBandwidth></"
                    "MemoryEntry>\n";
        else if (format == "sdrpp")
            text += (i == 1 ? "\"" : ",\n\"") + name +
                    "\": {\"bandwidth\": 12500.0, \"frequency\": " + hertz + ".0, \"mode\": 0}";
        else
            text += QByteArray::number(i) + ',' + name + ',' + hertz.left(3) + '.' + hertz.mid(3) + ",NFM\n";
    }
    if (format == "gqrx")
        return GQRX_HEADER + text;
    if (format == "sdrsharp")
        return "<ArrayOfMemoryEntry>\n" + text + "</ArrayOfMemoryEntry>";
    return format == "sdrpp" ? "{\"bookmarks\": {\n" + text + "}}" : CHIRP_HEADER + text;
}

void TstFrequencyImport::samples_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QStringList>("leftOut");
    QTest::newRow("gqrx") << "gqrx.csv"
                          << QStringList{"7 Skerry Radio 16: 156.8 MHz, FM, 12.5 kHz",
                                         "8 Skerry Radio \"distress\": 2.182 MHz, USB, 2.8 kHz",
                                         "9 Oxen Point Volmet: 8.992 MHz, AM, 6 kHz (usual)",
                                         "10 Fog horn beacon: 4.583 MHz, CW, 500 Hz",
                                         "11 Vellin FM, stereo: 98.4 MHz, FM, 160 kHz",
                                         "12 Weather picture: refused: the mode Raw I/Q has no counterpart",
                                         "13 Silent: refused: the mode Demod Off has no counterpart",
                                         "14 Zero: refused: 0 Hz is outside of 1 Hz to 40 GHz",
                                         "15 Half: refused: 145000000.5 is no whole number of hertz",
                                         "16 : 121.5 MHz, AM, 8 kHz, named 121.5 MHz"}
                          << QStringList{"list of tags", "Tags"};
    QTest::newRow("sdrsharp")
        << "sdrsharp.xml"
        << QStringList{"3 Skerry Radio 16: 156.8 MHz, FM, 12.5 kHz",
                       "12 Harbour & pilots <north>: 2.182 MHz, USB, 2.8 kHz",
                       "21 Oxen Point <Volmet>: refused: the mode DSB has no counterpart",
                       "29 Vellin FM: 98.4 MHz, FM, 120 kHz (usual)",
                       "37 Everything: refused: the mode RAW has no counterpart",
                       "43 Beyond: refused: 40.000000001 GHz is outside of 1 Hz to 40 GHz",
                       "49 No frequency: refused: it has no frequency"}
        << QStringList{"GroupName", "Shift"};
    QTest::newRow("sdrpp") << "sdrpp.json"
                           << QStringList{"3 Skerry Radio 16: 156.8 MHz, FM, 12.5 kHz",
                                          "8 Vellin \"FM\": 98.4 MHz, FM, 200 kHz",
                                          "13 Oxen Point Volmet: 8.992 MHz, AM, 10 kHz",
                                          "14 Double sideband: refused: the mode DSB has no counterpart",
                                          "15 Harbour ö pilots: 2.182 MHz, USB, 2.8 kHz",
                                          "16 Fog horn beacon: 4.583 MHz, CW, 500 Hz (usual)",
                                          "17 Lower: 3.7 MHz, LSB, 2.7 kHz (usual)",
                                          "18 Everything: refused: the mode RAW has no counterpart",
                                          "19 No such mode: refused: the mode 8 has no counterpart",
                                          "20 Half a hertz: refused: 145000000.5 is no whole number of hertz",
                                          "21 Below: refused: -1 Hz is outside of 1 Hz to 40 GHz"}
                           << QStringList{"comment"};
    QTest::newRow("chirp") << "chirp.csv"
                           << QStringList{"2 SKERRY: 156.8 MHz, FM, 15 kHz (usual)",
                                          "3 HILL: 145.6125 MHz, FM, 12.5 kHz (usual)",
                                          "5 OXEN, PT: 8.992 MHz, AM, 6 kHz (usual)",
                                          "6 VELLIN: 98.4 MHz, FM, 120 kHz (usual)",
                                          "8 DIGI: refused: the mode DV has no counterpart",
                                          "9 FINE: refused: 145.0000001 is no whole number of hertz",
                                          "10 COMMA: refused: 145,5 is no number",
                                          "11 KEY: 7.02 MHz, CW, 500 Hz (usual)",
                                          "12 : 433.92 MHz, USB, 2.7 kHz (usual), named 433.92 MHz"}
                           << QStringList{"Offset", "rToneFreq", "cToneFreq", "DtcsCode", "DtcsPolarity",
                                          "TStep",  "Comment",   "Duplex",    "Tone",     "Skip"};
}

void TstFrequencyImport::samples()
{
    QFETCH(QString, file);
    const FrequencyImport import = Session::importFrequencyFile(LISTS + file, QTest::currentDataTag());
    QTEST(outcome(import), "expected");
    QTEST(import.leftOut, "leftOut");
    QCOMPARE(import.takenCount() + import.refusedCount(), import.lines.size());
}

void TstFrequencyImport::damagedFiles_data()
{
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("gqrx-damaged-fields.csv")
        << QStringList{"5 Skerry Radio 16: 156.8 MHz, FM, 12.5 kHz",
                       "6 Semicolon: refused: number of fields: 6, expected: 5",
                       "7 Too few: refused: number of fields: 2, expected: 5",
                       "8 Skerry Radio 13: refused: bandwidth: wide is no number"};
    QTest::newRow("gqrx-damaged-header.csv")
        << QStringList{"1 Skerry Radio 16: refused: it stands before the column names",
                       "4 Skerry Radio 13: 156.65 MHz, FM, 12.5 kHz"};
    QTest::newRow("gqrx-damaged-bytes.csv")
        << QStringList{QString("2 K%1nigs Radio: refused: the name holds something that is no UTF-8")
                           .arg(QChar(QChar::ReplacementCharacter)),
                       QString("3 Bell%1: refused: the name holds a control character")
                           .arg(QChar(QChar::ReplacementCharacter)),
                       "4 Skerry Radio 70: refused: number of fields: 3, expected: 5"};
    QTest::newRow("sdrsharp-damaged-cut-off.xml")
        << QStringList{"20 list: it is damaged: Premature end of document."};
    QTest::newRow("sdrsharp-damaged-fields.xml")
        << QStringList{"3 Twice: refused: \"Frequency\" is given twice",
                       "9 bold: refused: there are elements within \"Name\"",
                       "14 Misspelt: refused: the element \"MemoryEntri\" is no MemoryEntry",
                       "17 Skerry Radio 16: 156.8 MHz, FM, 12.5 kHz (usual)"};
    QTest::newRow("sdrsharp-damaged-entity.xml") << QStringList{"2 list: A document type is not allowed"};
    QTest::newRow("sdrpp-damaged-cut-off.json") << QStringList{"9 list: it is damaged: unterminated string"};
    QTest::newRow("sdrpp-damaged-other.json") << QStringList{"0 list: it has no object \"bookmarks\""};
    QTest::newRow("sdrpp-damaged-types.json")
        << QStringList{"2 Text: refused: \"156800000\" is no number",
                       "3 Named mode: refused: the mode \"NFM\" has no counterpart",
                       "4 Nothing: refused: it is no object with frequency and mode",
                       "5 List: refused: it is no object with frequency and mode",
                       "6 Twice: refused: another bookmark of this name follows",
                       "7 Nested: 156.65 MHz, FM, 12.5 kHz (usual)",
                       "8 Twice: 156.8 MHz, FM, 12.5 kHz (usual)"};
    QTest::newRow("chirp-damaged-columns.csv") << QStringList{
        "2 SKERRY: refused: number of fields: 4, expected: 5",
        "3 HILL: refused: number of fields: 6, expected: 5", "4 OXEN: 8.992 MHz, AM, 6 kHz (usual)",
        "5 : refused: number of fields: 1, expected: 5"};
    QTest::newRow("chirp-damaged-header.csv")
        << QStringList{"1 list: its first line does not name the columns Frequency and Mode"};
    QTest::newRow("chirp-damaged-quote.csv")
        << QStringList{"2 SKERRY: 156.8 MHz, FM, 15 kHz (usual)",
                       "3 HILL: refused: something stands behind a closing quote",
                       "4 OXEN: 8.992 MHz, AM, 6 kHz (usual)",
                       "5 VELLIN: refused: something stands behind a closing quote",
                       "6 CROSS: refused: a quote stands in a field without quotes",
                       "7 LAST: 156.65 MHz, FM, 15 kHz (usual)"};
}

void TstFrequencyImport::damagedFiles()
{
    const QString file = QTest::currentDataTag();
    QTEST(outcome(Session::importFrequencyFile(LISTS + file, file.section('-', 0, 0))), "expected");
}

void TstFrequencyImport::lineEndsMakeNoDifference_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("lineEnd");
    for (const QString file : {"gqrx.csv", "sdrsharp.xml", "sdrpp.json", "chirp.csv"}) {
        QTest::newRow(qPrintable(file + ", CRLF")) << file << QByteArray("\r\n");
        QTest::newRow(qPrintable(file + ", CR")) << file << QByteArray("\r");
    }
}

void TstFrequencyImport::lineEndsMakeNoDifference()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, lineEnd);
    const QString format = file.section('.', 0, 0);
    const QByteArray original = content(file);
    const QStringList expected = outcome(format, original);
    QByteArray other = original;
    QCOMPARE(outcome(format, other.replace('\n', lineEnd)), expected);
    QCOMPARE(outcome(format, other.trimmed()), expected); // Without the last one.
    QCOMPARE(outcome(format, "\xEF\xBB\xBF" + original), expected);
}

void TstFrequencyImport::modesAreTranslated_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("mode");
    QTest::addColumn<QString>("demodulation"); // Empty: refused.
    QTest::addColumn<int>("bandwidth");        // Hz, the usual one.
    const auto row = [](const char* format, const char* mode, const char* demodulation = "",
                        int bandwidth = 0) {
        QTest::addRow("%s %s", format, mode) << format << QByteArray(mode) << demodulation << bandwidth;
    };
    row("gqrx", "AM", "AM", 6000);
    row("gqrx", "am", "AM", 6000);
    row("gqrx", "AM-Sync", "AM", 6000);
    row("gqrx", "LSB", "LSB", 2700);
    row("gqrx", "USB", "USB", 2700);
    row("gqrx", "CW-L", "CW", 500);
    row("gqrx", "CW-U", "CW", 500);
    row("gqrx", "Narrow FM", "FM", 12500);
    row("gqrx", "WFM (mono)", "FM", 120000);
    row("gqrx", "WFM (stereo)", "FM", 120000);
    row("gqrx", "WFM (oirt)", "FM", 120000);
    row("gqrx", "Raw I/Q");
    row("gqrx", "Demod Off");
    row("gqrx", "FM");
    row("sdrsharp", "NFM", "FM", 12500);
    row("sdrsharp", "WFM", "FM", 120000);
    row("sdrsharp", "AM", "AM", 6000);
    row("sdrsharp", "LSB", "LSB", 2700);
    row("sdrsharp", "USB", "USB", 2700);
    row("sdrsharp", "CW", "CW", 500);
    row("sdrsharp", "DSB");
    row("sdrsharp", "RAW");
    row("sdrpp", "0", "FM", 12500);
    row("sdrpp", "1", "FM", 120000);
    row("sdrpp", "2", "AM", 6000);
    row("sdrpp", "3");
    row("sdrpp", "4", "USB", 2700);
    row("sdrpp", "5", "CW", 500);
    row("sdrpp", "6", "LSB", 2700);
    row("sdrpp", "7");
    row("sdrpp", "8");
    row("sdrpp", "-1");
    row("sdrpp", "0.5");
    row("sdrpp", "\"NFM\"");
    row("chirp", "FM", "FM", 15000);
    row("chirp", "NFM", "FM", 12500);
    row("chirp", "WFM", "FM", 120000);
    row("chirp", "AM", "AM", 6000);
    row("chirp", "NAM", "AM", 6000);
    row("chirp", "USB", "USB", 2700);
    row("chirp", "LSB", "LSB", 2700);
    row("chirp", "CW", "CW", 500);
    row("chirp", "CWR", "CW", 500);
    row("chirp", "NCW", "CW", 300);
    row("chirp", "NCWR", "CW", 300);
    for (const char* mode : {"DV", "DMR", "P25", "RTTY", "DIG", "PKT", "Auto"})
        row("chirp", mode);
}

void TstFrequencyImport::modesAreTranslated()
{
    QFETCH(QString, format);
    QFETCH(QByteArray, mode);
    QFETCH(QString, demodulation);
    const QByteArray frequency = format == "chirp" ? "7" : "7000000";
    const FrequencyImport import =
        Session::importFrequencies(MAKERS.value(format)(frequency, mode, "0"), format);
    QCOMPARE(import.lines.size(), 1);
    const ImportedLine& line = import.lines.first();
    QCOMPARE(line.isTaken(), !demodulation.isEmpty());
    QCOMPARE(line.demodulation, demodulation);
    QTEST(int(line.bandwidth), "bandwidth");
    QCOMPARE(line.isUsualBandwidth, line.isTaken());
    if (!line.isTaken())
        QVERIFY2(line.reason.endsWith("has no counterpart"), qPrintable(line.reason));
    else
        QVERIFY(Audio_Settings::NameToDemodulation(demodulation) >= 0);
}

void TstFrequencyImport::frequenciesAreExact_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("result"); // Hz, or what a refusal says.
    const auto row = [](const char* format, const char* text, const char* result) {
        QTest::addRow("%s %s", format, text) << format << QByteArray(text) << result;
    };
    row("chirp", "145.500000", "145500000");
    row("chirp", "145.5", "145500000");
    row("chirp", "145", "145000000");
    row("chirp", "145.", "145000000");
    row("chirp", ".145", "145000");
    row("chirp", "000145.5000000000", "145500000");
    row("chirp", "433.920001", "433920001");
    row("chirp", "1.000001", "1000001");
    row("chirp", "0.000001", "1");
    row("chirp", "40000", "40000000000");
    row("chirp", "40000.000001", "40.000000001 GHz is outside of 1 Hz to 40 GHz");
    row("chirp", "0.000000", "0 Hz is outside of 1 Hz to 40 GHz");
    row("chirp", "-145.5", "-145.5 MHz is outside of 1 Hz to 40 GHz");
    row("chirp", "145.0000005", "145.0000005 is no whole number of hertz");
    row("chirp", "1e2", "1e2 is no number");
    row("chirp", "145 MHz", "145 MHz is no number");
    row("chirp", ".", ". is no number");
    row("chirp", "", "it has no frequency");
    row("chirp", "99999999999999999999", "99999999999999999999 is out of range");
    row("gqrx", "1", "1");
    row("gqrx", "40000000000", "40000000000");
    row("gqrx", "40000000001", "40.000000001 GHz is outside of 1 Hz to 40 GHz");
    row("gqrx", "145500000.0", "145500000");
    row("gqrx", "145500000.1", "145500000.1 is no whole number of hertz");
    row("gqrx", "0x10", "0x10 is no number");
    row("sdrsharp", " 156800000 ", "156800000");
    row("sdrsharp", "9223372036854775808", "9223372036854775808 is out of range");
    row("sdrpp", "156800000.0", "156800000");
    row("sdrpp", "1.568e8", "156800000");
    row("sdrpp", "98399999.99999999", "98399999.99999999 is no whole number of hertz");
    row("sdrpp", "1e300", "1e+300 is no number");
    row("sdrpp", "true", "true is no number");
    row("sdrpp", "null", "null is no number");
    row("sdrpp", "[1]", "[1] is no number");
    row("sdrpp", "{\"a\":1}", "{\"a\":1} is no number");
}

void TstFrequencyImport::frequenciesAreExact()
{
    QFETCH(QString, format);
    QFETCH(QByteArray, text);
    QFETCH(QString, result);
    const QByteArray mode = format == "sdrpp" ? "2" : "AM";
    const FrequencyImport import =
        Session::importFrequencies(MAKERS.value(format)(text, mode, "10000"), format);
    QCOMPARE(outcome(import).size(), 1);
    const ImportedLine& line = import.lines.first();
    QCOMPARE(line.isTaken() ? QString::number(line.hertz) : line.reason, result);
}

void TstFrequencyImport::bandwidths_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("becomes");
    const QString wide = "7 MHz, AM, 6 kHz (usual)";
    QTest::newRow("gqrx, 8000") << "gqrx" << QByteArray("8000") << "7 MHz, AM, 8 kHz";
    QTest::newRow("gqrx, 0") << "gqrx" << QByteArray("0") << wide;
    QTest::newRow("gqrx, empty") << "gqrx" << QByteArray() << wide;
    QTest::newRow("gqrx, below") << "gqrx" << QByteArray("-5")
                                 << "refused: bandwidth: -5 Hz is outside of 1 Hz to 2 GHz";
    QTest::newRow("gqrx, above") << "gqrx" << QByteArray("2000000001")
                                 << "refused: bandwidth: 2.000000001 GHz is outside of 1 Hz to 2 GHz";
    QTest::newRow("sdrsharp, empty") << "sdrsharp" << QByteArray() << wide;
    QTest::newRow("sdrsharp, text") << "sdrsharp" << QByteArray("wide")
                                    << "refused: bandwidth: wide is no number";
    QTest::newRow("sdrpp, part") << "sdrpp" << QByteArray("12500.5")
                                 << "refused: bandwidth: 12500.5 is no whole number of hertz";
    QTest::newRow("sdrpp, null") << "sdrpp" << QByteArray("null") << "refused: bandwidth: null is no number";
}

void TstFrequencyImport::bandwidths()
{
    QFETCH(QString, format);
    QFETCH(QByteArray, text);
    const QByteArray mode = format == "sdrpp" ? "2" : "AM";
    const FrequencyImport import =
        Session::importFrequencies(MAKERS.value(format)("7000000", mode, text), format);
    QCOMPARE(import.lines.size(), 1);
    QTEST(import.lines.first().becomes(), "becomes");
}

void TstFrequencyImport::columnsAreFoundByTheHeader()
{
    const FrequencyImport import = Session::importFrequencies(
        "Mode,Comment,\"Frequency\",Location\nAM,\"a, \"\"b\"\"\",8.992,1\nUSB,,2.182,2\n", "chirp");
    QCOMPARE(outcome(import), QStringList({"2 : 8.992 MHz, AM, 6 kHz (usual), named 8.992 MHz",
                                           "3 : 2.182 MHz, USB, 2.7 kHz (usual), named 2.182 MHz"}));
    QCOMPARE(import.leftOut, QStringList{"Comment"});
}

void TstFrequencyImport::namesAreTakenAsTheyAre_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("name"); // Of the entry, or what a refusal says.
    const auto gqrx = [](const QByteArray& name) {
        return GQRX_HEADER + ("1000000; " + name) + "; AM; 0; \n";
    };
    const auto chirp = [](const QByteArray& name) { return CHIRP_HEADER + ("0," + name) + ",1,AM\n"; };
    const auto sdrpp = [](const QByteArray& name) {
        return "{\"bookmarks\":{\"" + name + "\":{\"frequency\":1000000,\"mode\":2}}}";
    };
    QTest::newRow("umlauts") << "gqrx" << gqrx("K\xC3\xB6nig \xE2\x82\xAC") << "König €";
    QTest::newRow("markup") << "gqrx" << gqrx("<a> & \"b\"") << "<a> & \"b\"";
    QTest::newRow("line end in quotes") << "chirp" << chirp("\"two\nlines\"") << "two lines";
    QTest::newRow("quotes") << "chirp" << chirp("\"say \"\"a, b\"\"\"") << "say \"a, b\"";
    QTest::newRow("escapes") << "sdrpp" << sdrpp("a\\\"b\\\\c\\u00e4\\n\\ud83d\\ude00") << "a\"b\\cä 😀";
    QTest::newRow("half of a pair") << "sdrpp" << sdrpp("a\\ud83d")
                                    << "the name holds something that is no UTF-8";
    QTest::newRow("no character") << "gqrx" << gqrx("a\xEF\xBF\xBE") << "the name holds a control character";
    QTest::newRow("control") << "sdrpp" << sdrpp("a\\u0000b") << "the name holds a control character";
    QTest::newRow("a thousand") << "gqrx" << gqrx(QByteArray(1000, 'n')) << QString(1000, 'n');
    QTest::newRow("more") << "gqrx" << gqrx(QByteArray(1001, 'n'))
                          << "the name has more than 1000 characters";
}

void TstFrequencyImport::namesAreTakenAsTheyAre()
{
    QFETCH(QString, format);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, name);
    const FrequencyImport import = Session::importFrequencies(bytes, format);
    QCOMPARE(import.lines.size(), 1);
    const ImportedLine& line = import.lines.first();
    QCOMPARE(line.isTaken() ? line.entryName : line.reason, name);
    if (!line.isTaken())
        return;
    FrequencyStoreList list;
    QVERIFY(list.SetXmlString(import.toList("Names").GetXmlString(true), true));
    QCOMPARE(list.GetFrequencyStoreEntry().first().GetProfile_Data().GetProfileName(), name);
}

void TstFrequencyImport::fiveHundredEntries_data()
{
    QTest::addColumn<int>("firstLine");
    QTest::newRow("gqrx") << 2;
    QTest::newRow("sdrsharp") << 2;
    QTest::newRow("sdrpp") << 2;
    QTest::newRow("chirp") << 2;
}

void TstFrequencyImport::fiveHundredEntries()
{
    QFETCH(int, firstLine);
    constexpr int COUNT = 500;
    const QString format = QTest::currentDataTag();
    const FrequencyImport import = Session::importFrequencies(many(format, COUNT), format);
    QCOMPARE(import.failure, QString());
    QCOMPARE(import.takenCount(), COUNT);
    QCOMPARE(import.lines.size(), COUNT);
    const int linesEach = format == "sdrsharp" ? 2 : 1;
    for (int i = 0; i < COUNT; ++i) {
        const ImportedLine& line = import.lines.at(i);
        QCOMPARE(line.line, firstLine + i * linesEach);
        QCOMPARE(line.entryName, QString("Station %1").arg(i + 1));
        QCOMPARE(line.hertz, 100000000 + (i + 1) * 1000);
        QCOMPARE(line.bandwidth, 12500);
        QCOMPARE(line.demodulation, QString("FM"));
    }
    QCOMPARE(import.toList("Many").GetFrequencyStoreEntry().size(), COUNT);
}

void TstFrequencyImport::theListIsValid()
{
    QFETCH(QString, file);
    const QString format = QTest::currentDataTag();
    const FrequencyImport import = Session::importFrequencyFile(LISTS + file, format);
    const QTemporaryDir folder;
    const QString path = folder.filePath("list.xml");
    QVERIFY(Session::saveFile(path, import.toList("Imported").GetXmlString(true).toUtf8(), nullptr));

    FrequencyStoreList list;
    FreqStoreXml::FileHandling().ImportXml(path, list);
    list.SetValidate(true);
    QVERIFY2(list.Check(), qPrintable(list.GetCheckReason()));
    QCOMPARE(list.GetName(), QString("Imported"));
    QVERIFY(import.takenCount() > 0 && import.refusedCount() > 0);
    int entry = 0;
    for (const ImportedLine& line : import.lines) {
        if (!line.isTaken())
            continue;
        const FrequencyStoreEntry& found = list.GetFrequencyStoreEntry().at(entry++);
        QCOMPARE(found.GetFFM_Settings().GetCenterFrequency(), line.hertz);
        QCOMPARE(found.GetFFM_Settings().GetBandwidth(), line.bandwidth);
        QCOMPARE(found.GetFFM_Settings().GetChannelName(), line.entryName);
        QCOMPARE(Audio_Settings::DemodulationToName(found.GetAudio_Settings().GetDemodulation()),
                 line.demodulation);
        QCOMPARE(found.GetAudio_Settings().GetBandwidth(), line.bandwidth);
        QCOMPARE(found.GetProfile_Data().GetProfileID(), QString("%1:%2").arg(format).arg(line.line));
        QCOMPARE(found.GetProfile_Data().GetProfileName(), line.entryName);
        QVERIFY(!found.IsShortTime_SettingsSet() && !found.IsDemodulator_SettingsSet());
    }
    QCOMPARE(entry, list.GetFrequencyStoreEntry().size());
    const std::shared_ptr<JEDVEPLUGIN::IJobProfile> profile =
        JEDVEPLUGIN::JobProfileFactory::getProfile(path);
    QVERIFY(profile && profile->isApplicable() && !profile->isShortTimeProfile());
}

void TstFrequencyImport::formatsAreGuessed_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("format");
    QTest::newRow("gqrx") << content("gqrx.csv") << "gqrx";
    QTest::newRow("gqrx without tags") << QByteArray(GQRX_HEADER) << "gqrx";
    QTest::newRow("sdrsharp") << content("sdrsharp.xml") << "sdrsharp";
    QTest::newRow("sdrpp") << "\n " + content("sdrpp.json") << "sdrpp";
    QTest::newRow("chirp") << content("chirp.csv") << "chirp";
    QTest::newRow("chirp with BOM") << "\xEF\xBB\xBF" + content("chirp.csv") << "chirp";
    QTest::newRow("chirp with CR") << content("chirp.csv").replace('\n', '\r') << "chirp";
    QTest::newRow("other CSV") << QByteArray("a,b\n1,2\n") << QString();
    QTest::newRow("other XML") << QByteArray("<Job/>") << QString();
    QTest::newRow("script") << QByteArray("#!/bin/sh\necho;\n") << QString();
    QTest::newRow("nothing") << QByteArray() << QString();
}

void TstFrequencyImport::formatsAreGuessed()
{
    QFETCH(QByteArray, bytes);
    QTEST(Session::guessFrequencyFormat(bytes), "format");
    for (const QString& format : Session::frequencyFormats())
        QVERIFY(!Session::frequencyFormatText(format).isEmpty());
    QVERIFY(Session::frequencyFormatText("csv").isNull());
}

void TstFrequencyImport::hostileContent_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("failure");
    QByteArray attributes = "<ArrayOfMemoryEntry ";
    for (int i = 0; i < 200000; ++i)
        attributes += 'a' + QByteArray::number(i) + "=\"\" ";
    QTest::newRow("attributes") << "sdrsharp" << attributes + "/>"
                                << "An element has more than 256 attributes";
    QTest::newRow("levels") << "sdrsharp"
                            << "<ArrayOfMemoryEntry>" + QByteArray("<a>").repeated(100000)
                            << "it is damaged: elements are nested more than 256 levels";
    QTest::newRow("levels of JSON") << "sdrpp"
                                    << "{\"bookmarks\":" + QByteArray("{\"a\":").repeated(100000)
                                    << "it is damaged: too deeply nested document";
    QTest::newRow("one name") << "sdrpp"
                              << "{\"bookmarks\":{" + QByteArray("\"a\":1,").repeated(20000) + "\"a\":1}}"
                              << QString();
    QTest::newRow("NUL") << "gqrx" << QByteArray(GQRX_HEADER) + QByteArray(4, '\0')
                         << "it is no text in UTF-8";
    QTest::newRow("other root") << "sdrsharp" << QByteArray("<Job/>")
                                << "it begins with \"Job\", not with \"ArrayOfMemoryEntry\"";
    QTest::newRow("no XML") << "sdrsharp" << QByteArray("a") << "it is damaged: Start tag expected.";
    QTest::newRow("no JSON") << "sdrpp" << QByteArray("a") << "it is damaged: illegal value";
    QTest::newRow("array") << "sdrpp" << QByteArray("[]") << "it has no object \"bookmarks\"";
    QTest::newRow("large") << "gqrx" << QByteArray(16 * 1024 * 1024 + 1, ' ') << "it is larger than 16 MiB";
    QTest::newRow("unknown format") << "csv" << QByteArray() << "there is no format \"csv\"";
    for (const char* format : {"gqrx", "chirp"})
        QTest::addRow("quotes of %s", format)
            << format << QByteArray(CHIRP_HEADER) + GQRX_HEADER + QByteArray("\"a\"\"\n").repeated(50000)
            << QString();
    for (const char* format : {"gqrx", "sdrsharp", "sdrpp"})
        QTest::addRow("nothing for %s", format)
            << format
            << (QString(format) == "sdrpp"      ? QByteArray("{\"bookmarks\": {}}")
                : QString(format) == "sdrsharp" ? QByteArray("<ArrayOfMemoryEntry/>")
                                                : QByteArray("\n"))
            << "it has no entries";
}

void TstFrequencyImport::hostileContent()
{
    QFETCH(QString, format);
    QFETCH(QByteArray, bytes);
    QElapsedTimer clock;
    clock.start();
    const FrequencyImport import = Session::importFrequencies(bytes, format);
    QVERIFY2(clock.elapsed() < MOST_TIME, qPrintable(QString::number(clock.elapsed())));
    QTEST(import.failure, "failure");
    QCOMPARE(import.takenCount(), 0);
}

// Bytes exchanged, taken out and doubled: whatever comes of it is told, and what is taken is a valid list.
void TstFrequencyImport::damagedAtRandom()
{
    QFETCH(QString, file);
    const QByteArray original = content(file);
    QRandomGenerator random(20210417);
    const QByteArray characters = QByteArrayLiteral("\"',;<>&{}[]:\\\n\r\0\x80\xFF#0-.e ");
    int withEntries = 0;
    for (int round = 0; round < 300; ++round) {
        QByteArray bytes = original;
        for (int i = random.bounded(1, 8); i > 0; --i) {
            const int place = random.bounded(bytes.size());
            const int length = std::min(random.bounded(1, 40), bytes.size() - place);
            if (random.bounded(3) == 0)
                bytes.remove(place, length);
            else if (random.bounded(2) == 0)
                bytes.insert(place, bytes.mid(place, length));
            else
                bytes[place] = characters.at(random.bounded(characters.size()));
        }
        const FrequencyImport import = Session::importFrequencies(bytes, QTest::currentDataTag());
        QVERIFY(import.lines.isEmpty() != import.failure.isEmpty());
        for (const ImportedLine& line : import.lines)
            QVERIFY(!line.isTaken() || (line.hertz > 0 && line.bandwidth > 0 && !line.entryName.isEmpty()));
        FrequencyStoreList list;
        list.SetValidate(true);
        QVERIFY2(list.SetXmlString(import.toList("Damaged").GetXmlString(true), true),
                 qPrintable(list.GetCheckReason()));
        QCOMPARE(list.GetFrequencyStoreEntry().size(), import.takenCount());
        withEntries += import.takenCount() > 0;
    }
    QVERIFY(withEntries > 0);
}

void TstFrequencyImport::tooManyEntries()
{
    const FrequencyImport most = Session::importFrequencies(many("gqrx", 100000), "gqrx");
    QCOMPARE(most.takenCount(), 100000);
    const FrequencyImport more = Session::importFrequencies(many("gqrx", 100001), "gqrx");
    QCOMPARE(outcome(more), QStringList{"100002 list: it has more than 100000 entries"});
}

void TstFrequencyImport::whatIsNoFile()
{
    QCOMPARE(Session::importFrequencyFile("missing.csv", "gqrx").failure, QString("there is no such file"));
    QCOMPARE(Session::importFrequencyFile(LISTS, "gqrx").failure, QString("it is no regular file"));
    QCOMPARE(Session::importFrequencyFile("/dev/zero", "gqrx").failure, QString("it is no regular file"));
    const QTemporaryDir folder;
    QVERIFY(Session::saveFile(folder.filePath("large"), QByteArray(16 * 1024 * 1024 + 1, ' '), nullptr));
    QCOMPARE(Session::importFrequencyFile(folder.filePath("large"), "gqrx").failure,
             QString("it is larger than 16 MiB"));
}

void TstFrequencyImport::readingIsStopped()
{
    const QString format = QTest::currentDataTag();
    const QByteArray bytes = many(format, 5000);
    int last = -1;
    const FrequencyImport whole = Session::importFrequencies(bytes, format, [&last](int done, int total) {
        const bool isInOrder = done > last && done <= total;
        last = done;
        return isInOrder;
    });
    QCOMPARE(whole.takenCount(), 5000);
    QVERIFY(!whole.isStopped && last > 0);
    int calls = 0;
    const FrequencyImport stopped =
        Session::importFrequencies(bytes, format, [&calls](int, int) { return ++calls < 3; });
    QVERIFY(stopped.isStopped);
    QCOMPARE(calls, 3);
    QCOMPARE(outcome(stopped), QStringList{"0 list: reading was stopped"});
}

QTEST_GUILESS_MAIN(TstFrequencyImport)
#include "tst_frequencyimport.moc"
