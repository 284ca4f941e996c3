#include "jedcommonhelper.h"

#include <support/tracerecorder.h>

#include <QDir>
#include <QTemporaryDir>

using JEDVEPLUGIN::JEDCommonHelper;

class TstShapeProfiles : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void genericShapesAreFour();
    void shapesAreTheCategoriesInTheirOrder();
    void parametersAreThoseOfTheCategories();
    void shapesOfTheExampleProfile();
    void emptyProfileHasNoShapesAndNeedsNoFile();
    void fileLivesAsLongAsTheCall_data();
    void fileLivesAsLongAsTheCall();
    void missingFileIsTraced_data();
    void missingFileIsTraced();
    void invalidProfileIsTracedOnce_data();
    void invalidProfileIsTracedOnce();
    void failuresAreTracedOnlyIfAskedFor();
    void tenProfilesAskedForLastAreKept_data();
    void tenProfilesAskedForLastAreKept();
    void keptShapesNeedNoFile();

private:
    QTemporaryDir m_folder;
};

namespace {

using Ask = std::function<void(const QByteArray& profile)>;

/// The two questions about a profile, each with the lines of its traces.
struct Question
{
    Ask ask;
    int lineOfNoFile = 0;
    int lineOfInvalidProfile = 0;
};

void addQuestions()
{
    QTest::addColumn<Question>("question");
    QTest::newRow("shapes") << Question{
        [](const QByteArray& profile) { QVERIFY(JEDCommonHelper::getProfileShapes(profile).isEmpty()); }, 467,
        462};
    QTest::newRow("shapes and parameters")
        << Question{[](const QByteArray& profile) {
                        QVERIFY(JEDCommonHelper::getProfileShapesAndParameter(profile).isEmpty());
                    },
                    512, 507};
}

QByteArray profileOf(const QByteArray& name)
{
    return "<SpectralProfile version='1.0' name='" + name +
           "'><Category name='Wide'><Parameter name='Bandwidth' minimum='1' maximum='2'/></Category>"
           "<Category name='Bare'/></SpectralProfile>";
}

} // namespace

Q_DECLARE_METATYPE(Question)

void TstShapeProfiles::init()
{
    QVERIFY(m_folder.isValid());
    qputenv("TMPDIR", QFile::encodeName(m_folder.path()));
}

void TstShapeProfiles::genericShapesAreFour()
{
    QCOMPARE(JEDCommonHelper::getGenericShapes("anything"), QStringList({"AM", "CARRIER", "FSK2", "MC"}));
    QCOMPARE(JEDCommonHelper::getGenericShapes(QByteArray(1, '\0')).size(), 4);
    QCOMPARE(JEDCommonHelper::getGenericShapes(QByteArray()), QStringList());
    QCOMPARE(JEDCommonHelper::getGenericShapes(""), QStringList());
}

void TstShapeProfiles::shapesAreTheCategoriesInTheirOrder()
{
    JedTest::TraceRecorder traces;
    const QByteArray profile = profileOf("order");
    QCOMPARE(JEDCommonHelper::getProfileShapes(profile), QStringList({"Wide", "Bare"}));
    QCOMPARE(JEDCommonHelper::getProfileShapes(profile), QStringList({"Wide", "Bare"}));
    QCOMPARE(traces.take(), QStringList());
}

void TstShapeProfiles::parametersAreThoseOfTheCategories()
{
    JedTest::TraceRecorder traces;
    const QByteArray profile = profileOf("parameters");
    for (int attempt = 0; attempt < 2; ++attempt) {
        const QMap<QString, QString> shapes = JEDCommonHelper::getProfileShapesAndParameter(profile);
        QCOMPARE(shapes.keys(), QStringList({"Bare", "Wide"}));
        QVERIFY(JEDCommonHelper::isShapeParameterProducable(shapes.value("Wide")));
        QVERIFY(shapes.value("Wide").contains("maximum=\"2\""));
        QVERIFY(!shapes.value("Bare").isEmpty());
        QVERIFY(!JEDCommonHelper::isShapeParameterProducable(shapes.value("Bare")));
    }
    QCOMPARE(traces.take(), QStringList());
}

void TstShapeProfiles::shapesOfTheExampleProfile()
{
    QFile file(JED_SOURCE_DIR "/installation/Profiles/marine-vhf.sdp");
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(JEDCommonHelper::getProfileShapes(file.readAll()),
             QStringList({"FM voice", "DSC", "AIS", "Unmodulated"}));
}

void TstShapeProfiles::emptyProfileHasNoShapesAndNeedsNoFile()
{
    qputenv("TMPDIR", "/proc"); // where nobody can make a file
    JedTest::TraceRecorder traces;
    QCOMPARE(JEDCommonHelper::getProfileShapes(QByteArray()), QStringList());
    QCOMPARE(JEDCommonHelper::getProfileShapes(""), QStringList());
    QVERIFY(JEDCommonHelper::getProfileShapesAndParameter(QByteArray()).isEmpty());
    QCOMPARE(traces.take(), QStringList());
}

void TstShapeProfiles::fileLivesAsLongAsTheCall_data()
{
    addQuestions();
}

void TstShapeProfiles::fileLivesAsLongAsTheCall()
{
    QFETCH(Question, question);
    QStringList names;
    QByteArray content;
    // An invalid profile is traced while its file is there.
    JedTest::TraceRecorder quiet;
    const int sink = ErrorHandler::Instance()->AddTraceSink([this, &names, &content](const TraceRecord&) {
        names << QDir(m_folder.path()).entryList(QDir::Files);
        QFile file(m_folder.filePath(names.value(0)));
        if (file.open(QIODevice::ReadOnly))
            content = file.readAll();
    });
    question.ask("no profile at all");
    ErrorHandler::Instance()->RemoveTraceSink(sink);
    QCOMPARE(names.size(), 1);
    QVERIFY2(QRegularExpression("^SpectralProfile\\w{6}\\.sdp$").match(names.first()).hasMatch(),
             qPrintable(names.first()));
    QCOMPARE(content, QByteArray("no profile at all"));
    QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files), QStringList());
}

void TstShapeProfiles::missingFileIsTraced_data()
{
    addQuestions();
}

void TstShapeProfiles::missingFileIsTraced()
{
    QFETCH(Question, question);
    const QByteArray profile = profileOf("missing file");
    qputenv("TMPDIR", "/proc");
    JedTest::TraceRecorder traces;
    question.ask(profile);
    QCOMPARE(traces.take(),
             QStringList(QString("jedcommonhelper:%1: Error opening temporary file for Spectral Profile")
                             .arg(question.lineOfNoFile)));
    init();
    question.ask(profile); // The failure is kept.
    QCOMPARE(traces.take(), QStringList());
}

void TstShapeProfiles::invalidProfileIsTracedOnce_data()
{
    addQuestions();
}

void TstShapeProfiles::invalidProfileIsTracedOnce()
{
    QFETCH(Question, question);
    JedTest::TraceRecorder traces;
    question.ask("<SpectralProfile/>");
    QCOMPARE(traces.take(),
             QStringList(QString("jedcommonhelper:%1: Error opening Spectral Profile - invalid format?")
                             .arg(question.lineOfInvalidProfile)));
    question.ask("<SpectralProfile/>");
    QCOMPARE(traces.take(), QStringList());
}

void TstShapeProfiles::failuresAreTracedOnlyIfAskedFor()
{
    const JedTest::TraceMask mask(~0x20u);
    JedTest::TraceRecorder traces;
    QCOMPARE(JEDCommonHelper::getProfileShapes("quiet"), QStringList());
    QVERIFY(JEDCommonHelper::getProfileShapesAndParameter("quiet").isEmpty());
    QCOMPARE(traces.take(), QStringList());
}

void TstShapeProfiles::tenProfilesAskedForLastAreKept_data()
{
    addQuestions();
}

void TstShapeProfiles::tenProfilesAskedForLastAreKept()
{
    QFETCH(Question, question);
    JedTest::TraceRecorder traces;
    // Invalid profiles tell by their trace whether they are read.
    const auto isRead = [&question, &traces](int number) {
        question.ask("bad profile " + QByteArray::number(number));
        return traces.take().size() == 1;
    };
    for (int number = 0; number < 10; ++number)
        QVERIFY(isRead(number));
    for (int number = 0; number < 10; ++number)
        QVERIFY(!isRead(number));
    QVERIFY(isRead(10)); // The eleventh takes the place of the one asked for longest ago,
    QVERIFY(isRead(0));  // which then takes that of the next,
    QVERIFY(!isRead(2)); // unless it was used meanwhile.
    QVERIFY(isRead(1));
    QVERIFY(!isRead(2));
    QVERIFY(isRead(3));
}

void TstShapeProfiles::keptShapesNeedNoFile()
{
    const QByteArray profile = profileOf("kept");
    const QStringList shapes = JEDCommonHelper::getProfileShapes(profile);
    const QMap<QString, QString> parameters = JEDCommonHelper::getProfileShapesAndParameter(profile);
    qputenv("TMPDIR", "/proc");
    JedTest::TraceRecorder traces;
    QCOMPARE(JEDCommonHelper::getProfileShapes(profile), shapes);
    QCOMPARE(JEDCommonHelper::getProfileShapesAndParameter(profile), parameters);
    QCOMPARE(shapes.size(), 2);
    QCOMPARE(traces.take(), QStringList());
}

QTEST_GUILESS_MAIN(TstShapeProfiles)
#include "tst_shapeprofiles.moc"
