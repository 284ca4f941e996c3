#include <spectraldetector/spectraldetectorprofile.h>

#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <sys/stat.h>

using SpectralDetector::SpectralDetectorProfile;

class TstSpectralDetectorProfile : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void freshProfileIsClosed();
    void categoriesAreInTheOrderOfTheFile();
    void parametersAreAnElementOfTheirOwn();
    void categoryWithoutParametersIsAnEmptyElement();
    void namesAreEscaped();
    void unknownCategoryHasNoParameters();
    void closeForgetsEverything();
    void openReplacesWhatWasOpen();
    void failureForgetsWhatWasOpen();
    void commentsAndByteOrderMarkAreNoError();
    void profileWithoutCategoriesIsOne();
    void badContentIsToldWithItsPlace_data();
    void badContentIsToldWithItsPlace();
    void unreadableFileIsTold_data();
    void unreadableFileIsTold();
    void largestFileIsRead();
    void hostileTextEndsQuickly_data();
    void hostileTextEndsQuickly();
    void exampleProfilesAreRead_data();
    void exampleProfilesAreRead();

private:
    QString write(const QByteArray& text);

    QTemporaryDir m_folder;
    int m_files = 0;
};

namespace {

const char* const TWO_SHAPES = "<SpectralProfile version='1.0' name='Two shapes'>\n"
                               "  <Category name='Wide'>\n"
                               "    <Parameter name='Bandwidth' unit='Hz' minimum='10000' maximum='2e4'/>\n"
                               "    <Parameter name='Carriers' minimum='4' maximum='4'></Parameter>\n"
                               "  </Category>\n"
                               "  <Category name='Narrow'/>\n"
                               "</SpectralProfile>\n";

} // namespace

QString TstSpectralDetectorProfile::write(const QByteArray& text)
{
    QFile file(m_folder.filePath(QString("%1.sdp").arg(++m_files)));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
    return file.fileName();
}

void TstSpectralDetectorProfile::initTestCase()
{
    QVERIFY(m_folder.isValid());
}

void TstSpectralDetectorProfile::freshProfileIsClosed()
{
    const SpectralDetectorProfile profile;
    QVERIFY(!profile.isOpen());
    QCOMPARE(profile.problem(), QString());
    QCOMPARE(profile.name(), QString());
    QCOMPARE(profile.categoryNames(), QStringList());
}

void TstSpectralDetectorProfile::categoriesAreInTheOrderOfTheFile()
{
    SpectralDetectorProfile profile;
    QVERIFY2(profile.open(write(TWO_SHAPES)), qPrintable(profile.problem()));
    QVERIFY(profile.isOpen());
    QCOMPARE(profile.problem(), QString());
    QCOMPARE(profile.name(), QString("Two shapes"));
    QCOMPARE(profile.categoryNames(), QStringList({"Wide", "Narrow"}));
}

void TstSpectralDetectorProfile::parametersAreAnElementOfTheirOwn()
{
    SpectralDetectorProfile profile;
    QVERIFY(profile.open(write(TWO_SHAPES)));
    QCOMPARE(profile.categoryParameters("Wide"),
             QString(R"(<Parameters category="Wide">)"
                     R"(<Parameter name="Bandwidth" unit="Hz" minimum="10000" maximum="2e4"/>)"
                     R"(<Parameter name="Carriers" minimum="4" maximum="4"/></Parameters>)"));
}

void TstSpectralDetectorProfile::categoryWithoutParametersIsAnEmptyElement()
{
    SpectralDetectorProfile profile;
    QVERIFY(profile.open(write(TWO_SHAPES)));
    QXmlStreamReader reader(profile.categoryParameters("Narrow"));
    QVERIFY(reader.readNextStartElement());
    QCOMPARE(reader.name().toString(), QString("Parameters"));
    QCOMPARE(reader.attributes().value("category").toString(), QString("Narrow"));
    QVERIFY(!reader.readNextStartElement());
    QVERIFY(!reader.hasError());
}

void TstSpectralDetectorProfile::namesAreEscaped()
{
    SpectralDetectorProfile profile;
    QVERIFY(profile.open(write("<SpectralProfile version='1.0'><Category name='a&lt;b&amp;&quot;c'>"
                               "<Parameter name='x&gt;y' minimum='1' maximum='1'/></Category>"
                               "</SpectralProfile>")));
    QCOMPARE(profile.categoryNames(), QStringList("a<b&\"c"));
    QXmlStreamReader reader(profile.categoryParameters("a<b&\"c"));
    QVERIFY(reader.readNextStartElement());
    QCOMPARE(reader.attributes().value("category").toString(), QString("a<b&\"c"));
    QVERIFY(reader.readNextStartElement());
    QCOMPARE(reader.attributes().value("name").toString(), QString("x>y"));
}

void TstSpectralDetectorProfile::unknownCategoryHasNoParameters()
{
    SpectralDetectorProfile profile;
    QVERIFY(profile.open(write(TWO_SHAPES)));
    QVERIFY(profile.categoryParameters("wide").isNull());
    QVERIFY(profile.categoryParameters(QString()).isNull());
}

void TstSpectralDetectorProfile::closeForgetsEverything()
{
    SpectralDetectorProfile profile;
    QVERIFY(profile.open(write(TWO_SHAPES)));
    profile.close();
    QVERIFY(!profile.isOpen());
    QCOMPARE(profile.name(), QString());
    QCOMPARE(profile.categoryNames(), QStringList());
    QVERIFY(profile.categoryParameters("Wide").isNull());
    profile.close();
    QVERIFY(!profile.isOpen());
}

void TstSpectralDetectorProfile::openReplacesWhatWasOpen()
{
    SpectralDetectorProfile profile;
    QVERIFY(profile.open(write(TWO_SHAPES)));
    QVERIFY(profile.open(write("<SpectralProfile version='1'><Category name='Other'/></SpectralProfile>")));
    QCOMPARE(profile.name(), QString());
    QCOMPARE(profile.categoryNames(), QStringList("Other"));
}

void TstSpectralDetectorProfile::failureForgetsWhatWasOpen()
{
    SpectralDetectorProfile profile;
    QVERIFY(profile.open(write(TWO_SHAPES)));
    QVERIFY(!profile.open(write("<SpectralProfile version='1'><Category name='Good'/><Category/>")));
    QVERIFY(!profile.isOpen());
    QVERIFY(!profile.problem().isEmpty());
    QCOMPARE(profile.categoryNames(), QStringList());
    QVERIFY(profile.open(write(TWO_SHAPES)));
    QCOMPARE(profile.problem(), QString());
}

void TstSpectralDetectorProfile::commentsAndByteOrderMarkAreNoError()
{
    SpectralDetectorProfile profile;
    QVERIFY(profile.open(write("\xEF\xBB\xBF<?xml version='1.0' encoding='UTF-8'?><!-- a --><?tool b?>"
                               "<SpectralProfile version='1.7'><!-- c --><Category name='\xC3\xA4'>"
                               "<!-- d --></Category></SpectralProfile><!-- e -->\n")));
    QCOMPARE(profile.categoryNames(), QStringList(QString::fromUtf8("\xC3\xA4")));
}

void TstSpectralDetectorProfile::profileWithoutCategoriesIsOne()
{
    SpectralDetectorProfile profile;
    QVERIFY(profile.open(write("<SpectralProfile version='1.0'/>")));
    QVERIFY(profile.isOpen());
    QCOMPARE(profile.categoryNames(), QStringList());
}

void TstSpectralDetectorProfile::badContentIsToldWithItsPlace_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char* name, const char* text, const char* problem) {
        QTest::newRow(name) << QByteArray(text) << QString(problem);
    };
    const auto profile = [](const char* name, const char* inside, const char* problem) {
        QTest::newRow(name) << "<SpectralProfile version='1.0'>\n" + QByteArray(inside) + "</SpectralProfile>"
                            << QString(problem);
    };
    row("empty", "", "line 1, column 0: Premature end of document.");
    row("text", "profile", "line 1, column 1: Start tag expected.");
    row("another root", "<Profile/>", "line 1, column 10: <Profile> is not allowed here");
    row("a namespace", "<SpectralProfile xmlns='urn:x' version='1.0'/>",
        "line 1, column 46: <SpectralProfile> is not allowed here");
    row("no version", "<SpectralProfile/>", "line 1, column 18: version \"\" is not known, only 1.x is");
    row("another version", "<SpectralProfile version='2.0'/>",
        "line 1, column 32: version \"2.0\" is not known, only 1.x is");
    row("a longer version", "<SpectralProfile version='10'/>",
        "line 1, column 31: version \"10\" is not known, only 1.x is");
    row("an unknown attribute", "<SpectralProfile version='1.0' date=''/>",
        "line 1, column 40: attribute \"date\" is not known here");
    row("a document type", "<!DOCTYPE SpectralProfile [<!ENTITY a 'b'>]><SpectralProfile version='1.0'/>",
        "line 1, column 44: a document type is not allowed");
    row("cut off", "<SpectralProfile version='1.0'><Category name='a'>",
        "line 1, column 50: Premature end of document.");
    row("a second root", "<SpectralProfile version='1.0'/><SpectralProfile version='1.0'/>",
        "line 1, column 64: Extra content at end of document.");
    profile("a stranger", "<Shape name='a'/>", "line 2, column 17: <Shape> is not allowed here");
    profile("a text", "shape", "line 2, column 6: text is not allowed here");
    profile("a category without a name", "<Category/>", "line 2, column 11: a name is missing");
    profile("an empty name", "<Category name=''/>", "line 2, column 19: a name is missing");
    profile("a category twice", "<Category name='a'/><Category name='a'/>",
            "line 2, column 40: the name \"a\" is there twice");
    profile("a parameter without a name",
            "<Category name='a'><Parameter minimum='1' maximum='2'/></Category>",
            "line 2, column 55: a name is missing");
    profile("a parameter twice",
            "<Category name='a'><Parameter name='b' minimum='1' maximum='2'/>"
            "<Parameter name='b' minimum='1' maximum='2'/></Category>",
            "line 2, column 109: the name \"b\" is there twice");
    profile("no minimum", "<Category name='a'><Parameter name='b' maximum='2'/></Category>",
            "line 2, column 52: minimum=\"\" is not a number");
    profile("no number", "<Category name='a'><Parameter name='b' minimum='1' maximum='2 Hz'/></Category>",
            "line 2, column 67: maximum=\"2 Hz\" is not a number");
    profile("infinite", "<Category name='a'><Parameter name='b' minimum='1' maximum='inf'/></Category>",
            "line 2, column 66: maximum=\"inf\" is not a number");
    profile("not a number", "<Category name='a'><Parameter name='b' minimum='nan' maximum='1'/></Category>",
            "line 2, column 66: minimum=\"nan\" is not a number");
    profile("limits swapped", "<Category name='a'><Parameter name='b' minimum='2' maximum='1'/></Category>",
            "line 2, column 64: the minimum is above the maximum");
    profile("a child of a parameter",
            "<Category name='a'><Parameter name='b' minimum='1' maximum='2'><c/></Parameter></Category>",
            "line 2, column 67: <c> is not allowed here");
    profile("a text in a parameter",
            "<Category name='a'><Parameter name='b' minimum='1' maximum='2'>c</Parameter></Category>",
            "line 2, column 65: text is not allowed here");
}

void TstSpectralDetectorProfile::badContentIsToldWithItsPlace()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, problem);
    const QString fileName = write(text);
    SpectralDetectorProfile profile;
    QVERIFY(!profile.open(fileName));
    QVERIFY(!profile.isOpen());
    QCOMPARE(profile.problem(), QString("%1: %2").arg(fileName, problem));
}

void TstSpectralDetectorProfile::unreadableFileIsTold_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("problem");
    const QString missing = m_folder.filePath("missing.sdp");
    QTest::newRow("missing") << missing << missing + ": there is no such file";
    QTest::newRow("no name") << QString() << QString(": there is no such file");
    QTest::newRow("folder") << m_folder.path() << m_folder.path() + ": not a regular file";
    const QString pipe = m_folder.filePath("pipe.sdp");
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QTest::newRow("pipe") << pipe << pipe + ": not a regular file";
    const QString link = m_folder.filePath("link.sdp");
    QVERIFY(QFile::link(pipe, link));
    QTest::newRow("link to a pipe") << link << link + ": not a regular file";
    const QString device = "/dev/zero";
    QTest::newRow("device") << device << device + ": not a regular file";
    const QString large = write(QByteArray(SpectralDetectorProfile::MAX_SIZE + 1, ' '));
    QTest::newRow("too large") << large << large + ": larger than 1048576 bytes";
}

void TstSpectralDetectorProfile::unreadableFileIsTold()
{
    QFETCH(QString, fileName);
    QFETCH(QString, problem);
    SpectralDetectorProfile profile;
    QVERIFY(!profile.open(fileName));
    QCOMPARE(profile.problem(), problem);
}

void TstSpectralDetectorProfile::largestFileIsRead()
{
    QByteArray text = "<SpectralProfile version='1.0'>\n";
    const QByteArray end = "</SpectralProfile>";
    const QByteArray comment = "<!-- " + QByteArray(1000, '.') + " -->\n";
    while (text.size() + comment.size() + end.size() <= SpectralDetectorProfile::MAX_SIZE)
        text += comment;
    text += QByteArray(SpectralDetectorProfile::MAX_SIZE - text.size() - end.size(), ' ') + end;
    QCOMPARE(qint64(text.size()), SpectralDetectorProfile::MAX_SIZE);
    SpectralDetectorProfile profile;
    QVERIFY2(profile.open(write(text)), qPrintable(profile.problem()));
}

void TstSpectralDetectorProfile::hostileTextEndsQuickly_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("problem");
    const QByteArray start = "<SpectralProfile version='1.0'";
    QByteArray attributes = start;
    for (int i = 0; attributes.size() < SpectralDetectorProfile::MAX_SIZE - 100; ++i)
        attributes += " a" + QByteArray::number(i) + "='>'";
    QTest::newRow("attributes without end")
        << attributes + "/>" << QString(": a tag or text of more than 16384 characters");
    QByteArray fewer = start;
    for (int i = 0; fewer.size() < 16000; ++i)
        fewer += " a" + QByteArray::number(i) + "=''";
    QTest::newRow("as many attributes as fit") << fewer + "/>" << QString("is not known here");
    QTest::newRow("a text without end")
        << start + ">" + QByteArray(20000, 'x') << QString(": a tag or text of more than 16384 characters");
    QTest::newRow("depth") << QByteArray("<SpectralProfile version='1.0'>").repeated(30000)
                           << QString("<SpectralProfile> is not allowed here");
    QTest::newRow("zeros") << QByteArray(16000, '\0') << QString("line 1, column 0: ");
    QTest::newRow("no UTF-8 in a tag")
        << QByteArray("<Spectral\xFFProfile version='1.0'/>") << QString("line 1, ");
    QTest::newRow("UTF-16") << QByteArray("\xFF\xFE<\0S\0p\0/\0>\0", 12) << QString("line 1, ");
}

void TstSpectralDetectorProfile::hostileTextEndsQuickly()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, problem);
    const QString fileName = write(text);
    SpectralDetectorProfile profile;
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!profile.open(fileName));
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString("took %1 ms").arg(timer.elapsed())));
    QVERIFY2(profile.problem().contains(problem), qPrintable(profile.problem()));
}

void TstSpectralDetectorProfile::exampleProfilesAreRead_data()
{
    QTest::addColumn<QString>("path");
    const QDir folder(JED_SOURCE_DIR "/installation/Profiles");
    const QStringList names = folder.entryList(QDir::Files);
    QVERIFY(names.size() >= 2);
    for (const QString& name : names)
        QTest::newRow(qPrintable(name)) << folder.filePath(name);
}

void TstSpectralDetectorProfile::exampleProfilesAreRead()
{
    QFETCH(QString, path);
    SpectralDetectorProfile profile;
    QVERIFY2(profile.open(path), qPrintable(profile.problem()));
    QVERIFY(!profile.name().isEmpty());
    QVERIFY(profile.categoryNames().size() >= 4);
}

QTEST_GUILESS_MAIN(TstSpectralDetectorProfile)
#include "tst_spectraldetectorprofile.moc"
