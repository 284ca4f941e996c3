#include <quilappstartup/idllinstance.h>
#include <quilappstartup/libraryexaminer.h>
#include <support/ordinaryuser.h>

#include <QElapsedTimer>
#include <QLibraryInfo>
#include <QRandomGenerator>
#include <QSet>
#include <QTemporaryDir>

#include <sys/stat.h>

class TstLibraryExaminer : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void systemFileNames_data();
    void systemFileNames();
    void everyVerdictHasANameOfItsOwn();
    void goodLibraryIsAccepted();
    void linkToAGoodLibraryIsAccepted();
    void badFileIsRefusedWithWhatToDo_data();
    void badFileIsRefusedWithWhatToDo();
    void unreadableFileIsRefused();
    void otherVersionNamesBothVersionsAndTheNextStep_data();
    void otherVersionNamesBothVersionsAndTheNextStep();
    void pluginOfSomethingElseIsRefused();
    void pluginWithoutVersionIsRefused();
    void otherMachinesAreNamed_data();
    void otherMachinesAreNamed();
    void everyCutIsNoticed();
    void brokenHeadersAreSurvived_data();
    void brokenHeadersAreSurvived();
    void randomDamageIsSurvived();
    void libraryThatCannotBeLoadedNamesTheSymbol();
    void pluginObjectThatThrowsIsReported();
    void useDecidesAboutTheFactory_data();
    void useDecidesAboutTheFactory();
    void exceptionOfTheUseIsTheReason();
    void refusedFileIsNeverUsed();
    void nameIsLookedUpInTheFoldersInOrder();
    void nameWithAFolderIsRefused_data();
    void nameWithAFolderIsRefused();
    void nameThatIsNowhereNamesTheFolders();
    void badFileHidesAGoodOneBehindIt();

private:
    QString component(const QString& name) const;
    QString copyWith(const QString& name, const std::function<void(QByteArray&)>& change);
    QString write(const QString& name, const QByteArray& bytes);

    QTemporaryDir m_folder;
    const LibraryExaminer m_examiner{{"component", IDllFactory_iid, JED_COMPONENT_INTERFACE_VERSION}};
};

Q_DECLARE_METATYPE(TLibraryVerdict)

namespace {

TLibraryVerdict acceptAnything(QObject*)
{
    return LIBRARY_ACCEPTED;
}

// Places in the header of a library of 64 bits.
const int CLASS_AT = 4;
const int BYTE_ORDER_AT = 5;
const int TYPE_AT = 16;
const int MACHINE_AT = 18;
const int SEGMENT_TABLE_AT = 32;
const int SECTION_TABLE_AT = 40;
const int SEGMENT_SIZE_AT = 54;
const int SEGMENT_COUNT_AT = 56;
const int SECTION_SIZE_AT = 58;
const int SECTION_COUNT_AT = 60;
const int FIRST_SEGMENT_AT = 64;
const int OFFSET_IN_SEGMENT = 8;
const int SIZE_IN_SEGMENT = 32;

using Change = std::function<void(QByteArray&)>;

Change setByte(int place, char value)
{
    return [place, value](QByteArray& bytes) { bytes[place] = value; };
}

Change fill(int place, int length)
{
    return [place, length](QByteArray& bytes) { bytes.replace(place, length, QByteArray(length, '\xff')); };
}

} // namespace

QString TstLibraryExaminer::component(const QString& name) const
{
    return QString("%1/lib%2.so").arg(JED_TEST_COMPONENTS, name);
}

QString TstLibraryExaminer::write(const QString& name, const QByteArray& bytes)
{
    QFile file(m_folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
    return file.fileName();
}

QString TstLibraryExaminer::copyWith(const QString& name, const std::function<void(QByteArray&)>& change)
{
    QFile file(component("GoodComponent"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(file.fileName()));
    QByteArray bytes = file.readAll();
    change(bytes);
    return write(name, bytes);
}

void TstLibraryExaminer::initTestCase()
{
    QVERIFY(m_folder.isValid());
    // What the broken files are made for.
    QVERIFY(QSysInfo::WordSize == 64 && QSysInfo::ByteOrder == QSysInfo::LittleEndian);
}

void TstLibraryExaminer::systemFileNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("fileName");
    QTest::newRow("as configured") << "ScanSettings.dll"
                                   << "libScanSettings.so";
    QTest::newRow("capitals") << "Scan.DLL"
                              << "libScan.so";
    QTest::newRow("a dot inside") << "Scan.2.dll"
                                  << "libScan.2.so";
    QTest::newRow("another ending") << "libScan.so"
                                    << "libScan.so";
    QTest::newRow("no ending") << "Scan"
                               << "Scan";
    QTest::newRow("nothing") << ""
                             << "";
}

void TstLibraryExaminer::systemFileNames()
{
    QFETCH(QString, name);
    QFETCH(QString, fileName);
    QCOMPARE(LibraryExaminer::systemFileName(name), fileName);
}

void TstLibraryExaminer::everyVerdictHasANameOfItsOwn()
{
    QSet<QString> names;
    for (int verdict = LIBRARY_ACCEPTED; verdict <= LIBRARY_FACTORY_GAVE_NOTHING; ++verdict)
        names.insert(LibraryExaminer::verdictName(TLibraryVerdict(verdict)));
    QCOMPARE(names.size(), LIBRARY_FACTORY_GAVE_NOTHING + 1);
    QCOMPARE(LibraryExaminer::verdictName(LIBRARY_TRUNCATED), QString("truncated"));
}

void TstLibraryExaminer::goodLibraryIsAccepted()
{
    const QString path = component("GoodComponent");
    const LibraryReport report = m_examiner.examine(path);
    QVERIFY2(report.isAccepted(), qPrintable(report.text));
    QCOMPARE(report.path, path);
    QCOMPARE(report.text, path + ": a component of interface version 1. Nothing needs to be done.");
    QCOMPARE(report.interfaceId, QString("jobeditorve.component"));
    QCOMPARE(report.interfaceVersion, 1);
    QCOMPARE(report.metaData, (QJsonObject{{"interfaceVersion", 1}}));
}

void TstLibraryExaminer::linkToAGoodLibraryIsAccepted()
{
    const QString link = m_folder.filePath("libLink.so");
    QVERIFY(QFile::link(component("GoodComponent"), link));
    const LibraryReport report = m_examiner.examine(link);
    QVERIFY2(report.isAccepted(), qPrintable(report.text));
    QCOMPARE(report.path, link);
}

void TstLibraryExaminer::badFileIsRefusedWithWhatToDo_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<TLibraryVerdict>("verdict");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const QString& path, TLibraryVerdict verdict, const QString& text) {
        QTest::newRow(name) << path << verdict << path + ": " + text;
    };
    const QString folder = m_folder.path();
    row("missing", folder + "/libMissing.so", LIBRARY_MISSING,
        QString("there is no such component in %1. Put the file there, or correct the folder in the "
                "installation's configuration.")
            .arg(folder));
    QVERIFY(QFile::link(folder + "/gone.so", folder + "/libDangling.so"));
    row("dangling link", folder + "/libDangling.so", LIBRARY_DANGLING_LINK,
        QString("a link to %1/gone.so, which is not there. Remove the link, or put the file where it leads.")
            .arg(folder));
    row("folder", folder, LIBRARY_NO_FILE, "a folder, not a file. Take it out of the folder.");
    const QString pipe = folder + "/libPipe.so";
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    row("pipe", pipe, LIBRARY_NO_FILE,
        "a pipe, a socket or a device, not a file. Take it out of the folder.");
    row("device", "/dev/zero", LIBRARY_NO_FILE,
        "a pipe, a socket or a device, not a file. Take it out of the folder.");
    row("empty", write("libEmpty.so", QByteArray()), LIBRARY_EMPTY,
        "the file is empty. Copy it again from where it was built.");
    const QString noLibrary =
        "not a shared library. Take it out of the folder, or replace it by the component "
        "built for this system.";
    row("text", write("libText.so", "INPUT(libGoodComponent.so)\n"), LIBRARY_NO_LIBRARY, noLibrary);
    row("one byte", write("libByte.so", "\x7f"), LIBRARY_NO_LIBRARY, noLibrary);
    row("library of another system", write("libOther.so", "MZ" + QByteArray(4096, '\0')), LIBRARY_NO_LIBRARY,
        noLibrary);
    row("object file", copyWith("libObject.so", setByte(TYPE_AT, 1)), LIBRARY_NO_LIBRARY, noLibrary);
    row("start only",
        write("libStart.so", "\x7f"
                             "ELF"),
        LIBRARY_TRUNCATED, "cut off: it has 4 of at least 64 bytes. Copy it again from where it was built.");
    row("other machine", copyWith("libMachine.so", setByte(MACHINE_AT, char(40))), LIBRARY_OTHER_MACHINE,
        QString("built for ARM, 64 bits, little endian, but this program for %1, 64 bits, little endian. "
                "Replace it by the component built for this machine.")
            .arg(QSysInfo::buildCpuArchitecture() == "x86_64" ? "x86-64" : "ARM64"));
    const QString plain = QString(JED_BINARY_DIR "/lib/libzubase.so");
    row("no plug-in", plain, LIBRARY_NO_METADATA,
        "a shared library, but no component: it has no plug-in metadata. Take it out of the folder; its "
        "author "
        "needs Q_PLUGIN_METADATA with IID \"jobeditorve.component\".");
    row("older interface", component("OlderComponent"), LIBRARY_OLDER_INTERFACE,
        "built for interface version 0, but this program works with version 1. Install a newer release of "
        "the "
        "component, or build it again with the headers of version 1.");
}

void TstLibraryExaminer::badFileIsRefusedWithWhatToDo()
{
    QFETCH(QString, path);
    QFETCH(TLibraryVerdict, verdict);
    QFETCH(QString, text);
    const LibraryReport report = m_examiner.examine(path);
    QCOMPARE(report.text, text);
    QCOMPARE(report.verdict, verdict);
    QVERIFY(!report.isAccepted());
    QCOMPARE(report.path, path);
}

void TstLibraryExaminer::unreadableFileIsRefused()
{
    const QString path = copyWith("libSecret.so", [](QByteArray&) {});
    QVERIFY(QFile::setPermissions(path, QFile::Permissions()));
    // Everybody may look into the folder.
    QVERIFY(QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7755)));
    const JedTest::OrdinaryUser user;
    const LibraryReport report = m_examiner.examine(path);
    QCOMPARE(report.verdict, LIBRARY_UNREADABLE);
    QCOMPARE(report.text, path + ": cannot be read: Permission denied. Allow this user to read the file.");
}

void TstLibraryExaminer::otherVersionNamesBothVersionsAndTheNextStep_data()
{
    QTest::addColumn<int>("ours");
    QTest::addColumn<TLibraryVerdict>("verdict");
    QTest::addColumn<QString>("text");
    QTest::newRow("older")
        << 3 << LIBRARY_OLDER_INTERFACE
        << "built for interface version 1, but this program works with version 3. Install a "
           "newer release of the plug-in, or build it again with the headers of version 3.";
    QTest::newRow("newer") << 0 << LIBRARY_NEWER_INTERFACE
                           << "built for interface version 1, but this program works with version 0. Update "
                              "this program, or install an older release of the plug-in.";
}

void TstLibraryExaminer::otherVersionNamesBothVersionsAndTheNextStep()
{
    QFETCH(int, ours);
    QFETCH(TLibraryVerdict, verdict);
    QFETCH(QString, text);
    const QString path = component("GoodComponent");
    const LibraryReport report = LibraryExaminer({"plug-in", IDllFactory_iid, ours}).examine(path);
    QCOMPARE(report.text, path + ": " + text);
    QCOMPARE(report.verdict, verdict);
    QCOMPARE(report.interfaceVersion, 1);
}

void TstLibraryExaminer::pluginOfSomethingElseIsRefused()
{
    const QString path = component("GoodComponent");
    const LibraryReport report = LibraryExaminer({"plug-in", "somebody.else", 1}).examine(path);
    QCOMPARE(report.verdict, LIBRARY_OTHER_INTERFACE);
    QCOMPARE(report.text, path + ": made for \"jobeditorve.component\", but a plug-in is made for "
                                 "\"somebody.else\". Take it out of the folder.");
    QCOMPARE(report.interfaceId, QString("jobeditorve.component"));
}

void TstLibraryExaminer::pluginWithoutVersionIsRefused()
{
    // Qt's own plug-ins are without one.
    const QString path = QLibraryInfo::location(QLibraryInfo::PluginsPath) + "/platforms/libqoffscreen.so";
    const QString interfaceId = m_examiner.examine(path).interfaceId;
    QVERIFY(!interfaceId.isEmpty());
    const LibraryReport report = LibraryExaminer({"platform", interfaceId, 4}).examine(path);
    QCOMPARE(report.verdict, LIBRARY_NO_VERSION);
    QCOMPARE(report.text, path +
                              ": its metadata name no \"interfaceVersion\". Its author has to name it in the "
                              "metadata file; this program works with version 4.");
}

void TstLibraryExaminer::otherMachinesAreNamed_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("found");
    QTest::newRow("machine") << MACHINE_AT << 243 << ": built for RISC-V, 64 bits, little endian, but";
    QTest::newRow("unknown machine") << MACHINE_AT << 200 << "machine type 200, 64 bits, little endian, but";
    QTest::newRow("bits") << CLASS_AT << 1 << ", 32 bits, little endian, but";
    QTest::newRow("byte order") << BYTE_ORDER_AT << 2 << ", 64 bits, big endian, but";
}

void TstLibraryExaminer::otherMachinesAreNamed()
{
    QFETCH(int, place);
    QFETCH(int, value);
    QFETCH(QString, found);
    const LibraryReport report = m_examiner.examine(copyWith("libMachine.so", setByte(place, char(value))));
    QCOMPARE(report.verdict, LIBRARY_OTHER_MACHINE);
    QVERIFY2(report.text.contains(found), qPrintable(report.text));
}

void TstLibraryExaminer::everyCutIsNoticed()
{
    const int size = int(QFileInfo(component("GoodComponent")).size());
    const QString path = copyWith("libCut.so", [](QByteArray&) {});
    QVERIFY(m_examiner.examine(path).isAccepted());
    QFile file(path);
    for (int cut = size - 1; cut >= 4; cut -= cut > size - 100 ? 1 : 97) {
        QVERIFY(file.resize(cut));
        const LibraryReport report = m_examiner.load(path, acceptAnything);
        QVERIFY2(report.verdict == LIBRARY_TRUNCATED,
                 qPrintable(QString("%1: %2").arg(cut).arg(report.text)));
    }
}

void TstLibraryExaminer::brokenHeadersAreSurvived_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<int>("length");
    QTest::addColumn<TLibraryVerdict>("verdict");
    QTest::newRow("segment table behind the end") << SEGMENT_TABLE_AT << 7 << LIBRARY_TRUNCATED;
    QTest::newRow("segment table at a negative place") << SEGMENT_TABLE_AT << 8 << LIBRARY_TRUNCATED;
    QTest::newRow("section table behind the end") << SECTION_TABLE_AT << 7 << LIBRARY_TRUNCATED;
    QTest::newRow("section table at a negative place") << SECTION_TABLE_AT << 8 << LIBRARY_TRUNCATED;
    QTest::newRow("size of a segment's entry") << SEGMENT_SIZE_AT << 2 << LIBRARY_NO_LIBRARY;
    QTest::newRow("many segments") << SEGMENT_COUNT_AT << 2 << LIBRARY_TRUNCATED;
    QTest::newRow("size of a section's entry") << SECTION_SIZE_AT << 2 << LIBRARY_TRUNCATED;
    QTest::newRow("many sections") << SECTION_COUNT_AT << 2 << LIBRARY_TRUNCATED;
    QTest::newRow("place of the first segment")
        << FIRST_SEGMENT_AT + OFFSET_IN_SEGMENT << 8 << LIBRARY_TRUNCATED;
    QTest::newRow("size of the first segment")
        << FIRST_SEGMENT_AT + SIZE_IN_SEGMENT << 8 << LIBRARY_TRUNCATED;
    QTest::newRow("both") << FIRST_SEGMENT_AT + OFFSET_IN_SEGMENT << 40 << LIBRARY_TRUNCATED;
}

void TstLibraryExaminer::brokenHeadersAreSurvived()
{
    QFETCH(int, place);
    QFETCH(int, length);
    QFETCH(TLibraryVerdict, verdict);
    QElapsedTimer timer;
    timer.start();
    const LibraryReport report =
        m_examiner.load(copyWith("libHeader.so", fill(place, length)), acceptAnything);
    QVERIFY(timer.elapsed() < 1000);
    QVERIFY2(report.verdict == verdict, qPrintable(report.text));
}

void TstLibraryExaminer::randomDamageIsSurvived()
{
    QFile file(copyWith("libDamaged.so", [](QByteArray&) {}));
    QVERIFY(file.open(QIODevice::ReadWrite));
    const QByteArray whole = file.readAll();
    // Mostly where it hurts: in the header, in the tables at both ends, in the metadata.
    const QVector<QPair<int, int>> places = {{0, 64},
                                             {64, 600},
                                             {whole.size() - 2200, 2200},
                                             {whole.indexOf("QTMETADATA"), 120},
                                             {0, whole.size()}};
    QRandomGenerator random(20240229);
    QMap<TLibraryVerdict, int> verdicts;
    for (int round = 0; round < 4000; ++round) {
        QVERIFY(file.seek(0) && file.write(whole) == whole.size());
        for (int damage = random.bounded(1, 5); damage > 0; --damage) {
            const QPair<int, int> place = places.at(random.bounded(places.size()));
            QVERIFY(file.seek(place.first + random.bounded(place.second)));
            QVERIFY(file.putChar(char(random.bounded(256))));
        }
        QVERIFY(file.flush());
        const LibraryReport report = m_examiner.examine(file.fileName());
        QVERIFY(report.text.startsWith(file.fileName() + ": "));
        ++verdicts[report.verdict];
    }
    for (const TLibraryVerdict verdict : {LIBRARY_ACCEPTED, LIBRARY_NO_LIBRARY, LIBRARY_OTHER_MACHINE,
                                          LIBRARY_TRUNCATED, LIBRARY_NO_METADATA})
        QVERIFY2(verdicts.value(verdict) > 0, qPrintable(LibraryExaminer::verdictName(verdict)));
}

void TstLibraryExaminer::libraryThatCannotBeLoadedNamesTheSymbol()
{
    const QString path = component("MissingSymbolComponent");
    QVERIFY(m_examiner.examine(path).isAccepted());
    const LibraryReport report = m_examiner.load(path, acceptAnything);
    QCOMPARE(report.verdict, LIBRARY_NOT_LOADED);
    QVERIFY2(report.text.startsWith(path + ": the system cannot load it: "), qPrintable(report.text));
    QVERIFY2(report.text.contains("functionOfAnotherRelease"), qPrintable(report.text));
    QVERIFY2(report.text.endsWith(
                 ". Install the libraries that it needs, in the versions that it was built with."),
             qPrintable(report.text));
}

void TstLibraryExaminer::pluginObjectThatThrowsIsReported()
{
    const QString path = component("ThrowingComponent");
    for (int attempt = 0; attempt < 2; ++attempt) {
        const LibraryReport report = m_examiner.load(path, acceptAnything);
        QCOMPARE(report.verdict, LIBRARY_FACTORY_FAILED);
        QCOMPARE(report.text, path +
                                  ": it gave up while making a component: no licence. Mend what the reason "
                                  "names, or tell its author.");
    }
}

void TstLibraryExaminer::useDecidesAboutTheFactory_data()
{
    QTest::addColumn<TLibraryVerdict>("verdict");
    QTest::addColumn<QString>("text");
    QTest::newRow("accepted") << LIBRARY_ACCEPTED
                              << "a component of interface version 1. Nothing needs to be done.";
    QTest::newRow("no factory")
        << LIBRARY_NO_FACTORY
        << "its plug-in object makes no component. Tell its author: the object has to "
           "implement \"jobeditorve.component\" and name it in Q_INTERFACES.";
    QTest::newRow("nothing") << LIBRARY_FACTORY_GAVE_NOTHING
                             << "it made no component and gave no reason. Tell its author.";
}

void TstLibraryExaminer::useDecidesAboutTheFactory()
{
    QFETCH(TLibraryVerdict, verdict);
    QFETCH(QString, text);
    const QString path = component("GoodComponent");
    QObject* seen = nullptr;
    const LibraryReport report = m_examiner.load(path, [&seen, verdict](QObject* plugin) {
        seen = plugin;
        return verdict;
    });
    QVERIFY(qobject_cast<IDllFactory*>(seen) != nullptr);
    QCOMPARE(report.verdict, verdict);
    QCOMPARE(report.text, path + ": " + text);
}

void TstLibraryExaminer::exceptionOfTheUseIsTheReason()
{
    const QString path = component("GoodComponent");
    const LibraryReport report =
        m_examiner.load(path, [](QObject*) -> TLibraryVerdict { throw std::runtime_error("100 %1 sure"); });
    QCOMPARE(report.verdict, LIBRARY_FACTORY_FAILED);
    QVERIFY2(report.text.contains(": 100 %1 sure. "), qPrintable(report.text));
}

void TstLibraryExaminer::refusedFileIsNeverUsed()
{
    bool used = false;
    const LibraryReport report = m_examiner.load(component("OlderComponent"), [&used](QObject*) {
        used = true;
        return LIBRARY_ACCEPTED;
    });
    QCOMPARE(report.verdict, LIBRARY_OLDER_INTERFACE);
    QVERIFY(!used);
}

void TstLibraryExaminer::nameIsLookedUpInTheFoldersInOrder()
{
    QTemporaryDir first;
    const QString copy = first.filePath("libGoodComponent.so");
    QVERIFY(QFile::copy(component("GoodComponent"), copy));
    const QStringList folders = {QString(), "/no/such/folder", first.path(), JED_TEST_COMPONENTS};
    const LibraryReport report = m_examiner.find("GoodComponent.dll", folders);
    QVERIFY2(report.isAccepted(), qPrintable(report.text));
    QCOMPARE(report.path, copy);
    QCOMPARE(m_examiner.find("OtherComponent.dll", folders).path, component("OtherComponent"));
}

void TstLibraryExaminer::nameWithAFolderIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString();
    QTest::newRow("folder") << "components/GoodComponent.dll";
    QTest::newRow("above") << "../components/GoodComponent.dll";
    QTest::newRow("absolute") << QString(JED_TEST_COMPONENTS "/libGoodComponent.so");
    QTest::newRow("backslash") << "components\\GoodComponent.dll";
    QTest::newRow("drive") << "C:GoodComponent.dll";
    QTest::newRow("this folder") << ".";
    QTest::newRow("folder above") << "..";
    QTest::newRow("zero") << QString("GoodComponent.dll") + QChar(0);
}

void TstLibraryExaminer::nameWithAFolderIsRefused()
{
    QFETCH(QString, name);
    const LibraryReport report = m_examiner.find(name, {JED_TEST_COMPONENTS, JED_BINARY_DIR "/tests"});
    QCOMPARE(report.verdict, LIBRARY_NO_PLAIN_NAME);
    QCOMPARE(report.text,
             QString("\"%1\" is not the plain file name of a component. Name it without its folder "
                     "(\"Name.dll\") and put the file into one of the folders for it.")
                 .arg(name));
}

void TstLibraryExaminer::nameThatIsNowhereNamesTheFolders()
{
    const LibraryReport report = m_examiner.find("Absent.dll", {"/a", "/b"});
    QCOMPARE(report.verdict, LIBRARY_MISSING);
    QCOMPARE(report.text,
             QString("libAbsent.so: there is no such component in /a, /b. Put the file there, or "
                     "correct the folder in the installation's configuration."));
    QVERIFY(m_examiner.find("Absent.dll", {})
                .text.startsWith(
                    "libAbsent.so: there is no such component in any folder, since none is configured. "));
}

void TstLibraryExaminer::badFileHidesAGoodOneBehindIt()
{
    QTemporaryDir first;
    QVERIFY(QFile::link(first.filePath("gone"), first.filePath("libGoodComponent.so")));
    const LibraryReport report = m_examiner.find("GoodComponent.dll", {first.path(), JED_TEST_COMPONENTS});
    QCOMPARE(report.verdict, LIBRARY_DANGLING_LINK);
}

QTEST_GUILESS_MAIN(TstLibraryExaminer)
#include "tst_libraryexaminer.moc"
