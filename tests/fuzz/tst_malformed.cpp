#include "resourcedescription.h"

#include <jobxml/job.h>
#include <jobxml/parametersettext.h>
#include <jobxml/settings.h>
#include <jobxml/tunerproperties.h>
#include <values/node.h>
#include <values/value.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>

namespace {

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// As the library decodes files: a byte that is no UTF-8 becomes a replacement character, NUL stays.
QString input(const char* root, const QString& name)
{
    const QByteArray bytes = contentOf(QStringLiteral(JED_MALFORMED_INPUTS "/%1/%2.xml").arg(root, name));
    return QString::fromUtf8(bytes.constData(), bytes.size());
}

struct Row
{
    QString name;
    QString outcome;
};

/// The rows of the table: case, what is wrong, outcome.
QVector<Row> rowsOfTable()
{
    QVector<Row> rows;
    const QRegularExpression row(QStringLiteral("^\\| `([^`]+)` \\|[^|]*\\| (\\w+) \\|$"));
    const QByteArray table = contentOf(QStringLiteral(JED_SOURCE_DIR "/tests/fuzz/malformed.md"));
    const QStringList lines = QString::fromUtf8(table).split('\n');
    for (const QString& line : lines) {
        const QRegularExpressionMatch match = row.match(line);
        if (match.hasMatch())
            rows.append({match.captured(1), match.captured(2)});
    }
    return rows;
}

/// Loads the input over a good content and compares the outcome with the table's; a rejection must name a
/// reason and leave the content alone.
void loadInto(REPORTGENERATOR::IRGObject& element, const QString& text, bool whole, const QString& outcome)
{
    const QString before = element.GetXmlString(whole);
    QVERIFY(!before.isEmpty());
    QElapsedTimer time;
    time.start();
    const bool taken = element.SetXmlString(text, whole);
    QVERIFY2(time.elapsed() < 10000, "took more than ten seconds");
    QCOMPARE(taken ? "taken" : "rejected", qPrintable(outcome));
    if (taken)
        return;
    QVERIFY(!element.GetCheckReason().isEmpty());
    QVERIFY(element.GetCheckLine() > 0);
    QCOMPARE(element.GetXmlString(whole), before);
}

} // namespace

/// What each reader makes of inputs that are no good.
class TstMalformed : public QObject
{
    Q_OBJECT

private slots:
    void theTableNamesEveryInput()
    {
        QStringList described;
        for (const Row& row : rowsOfTable())
            described.append(row.name + QStringLiteral(".xml"));
        described.sort();
        QCOMPARE(described.size(), 60);
        for (const char* root : {"Job", "TunerProperties", "FFM_Settings"}) {
            QDir made(QStringLiteral(JED_MALFORMED_INPUTS "/%1").arg(root));
            QStringList files = made.entryList(QDir::Files);
            files.sort();
            QCOMPARE(files, described);
        }
    }

    void jobFile_data() { addRows(); }
    void jobFile()
    {
        QFETCH(QString, name);
        QFETCH(QString, outcome);
        JobXml::Job job;
        job.GetJobInformation().SetName(QStringLiteral("before"));
        loadInto(job, input("Job", name), true, outcome);
    }

    void tunerPropertyFile_data() { addRows(); }
    void tunerPropertyFile()
    {
        QFETCH(QString, name);
        QFETCH(QString, outcome);
        JobXml::TunerProperties properties;
        properties.Setname(QStringLiteral("before"));
        const QString text = input("TunerProperties", name);
        loadInto(properties, text, true, outcome);
        const JEDVEPLUGIN::ResourceDescription description(text);
        QCOMPARE(description.isValid(), outcome == QLatin1String("taken"));
        QCOMPARE(description.getName().isNull(), outcome != QLatin1String("taken"));
    }

    void parameterSetElement_data() { addRows(); }
    void parameterSetElement()
    {
        QFETCH(QString, name);
        QFETCH(QString, outcome);
        if (name == QLatin1String("empty-file"))
            outcome = QStringLiteral("taken"); // an empty text makes a single element unset
        JobXml::FFM_Settings settings;
        settings.SetCenterFrequency(1000000);
        loadInto(settings, input("FFM_Settings", name), false, outcome);
    }

    void parameterSetText_data() { addRows(); }
    void parameterSetText()
    {
        QFETCH(QString, name);
        QFETCH(QString, outcome);
        Node node;
        QVERIFY(node.SetName(QStringLiteral("TunerSettings")));
        auto* frequency = new ValueInt64;
        frequency->SetName(QStringLiteral("CenterFrequency"));
        frequency->SetValue(1000000);
        QVERIFY(node.AddChild(frequency));
        JobXml::ParameterSetText::Report report;
        const bool taken = JobXml::ParameterSetText::fromText(node, input("FFM_Settings", name), &report);
        if (name == QLatin1String("empty-file"))
            outcome = QStringLiteral("taken");
        QCOMPARE(taken ? "taken" : "rejected", qPrintable(outcome));
        QCOMPARE(report.failure.isEmpty(), taken);
        if (!taken)
            QCOMPARE(frequency->GetValue(), 1000000LL);
    }

private:
    static void addRows()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("outcome");
        for (const Row& row : rowsOfTable())
            QTest::newRow(qPrintable(row.name)) << row.name << row.outcome;
    }
};

QTEST_GUILESS_MAIN(TstMalformed)
#include "tst_malformed.moc"
