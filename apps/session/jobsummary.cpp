#include "jobsummary.h"

#include "frequencyuse.h"
#include "joboutline.h"
#include "jobproblems.h"
#include "jobsession.h"
#include "receiveruse.h"
#include "resourcereport.h"
#include "revisittime.h"

#include <isubsetting.h>
#include <jedsubsettingfactory.h>
#include <QCoreApplication>
#include <QDateTime>
#include <reportlayer/elementtable.h>

using Session::FrequencyRange;
using Session::JobProblem;
using Session::JobSession;
using Session::OutlineRow;
using Session::ReceiverUse;
using Session::RevisitTime;

namespace {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Session::JobSummary)
};

// Black on white, on screens as well: it is the page that would be printed.
const char* const STYLE =
    "body { font-family: sans-serif; color: #000000; background-color: #ffffff; margin: 1em; }\n"
    "h1, h2, h3 { page-break-after: avoid; }\n"
    "h2 { margin-top: 1.5em; border-bottom: 1px solid #808080; }\n"
    "table { border-collapse: collapse; }\n"
    "tr { page-break-inside: avoid; }\n"
    "th, td { text-align: left; vertical-align: top; padding: 2px 16px 2px 0; }\n";

QString utcText(const QString& value)
{
    QDateTime time = QDateTime::fromString(value, Qt::ISODate);
    if (!time.isValid())
        return value;
    if (time.timeSpec() == Qt::LocalTime)
        time.setTimeSpec(Qt::UTC); // What names no zone is meant as UTC.
    return time.toUTC().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss 'UTC'"));
}

// As people read it: flags as words, times with their zone.
QString valueText(const OutlineRow& entry)
{
    if (entry.field->kind == REPORTGENERATOR::FieldKind::Boolean)
        return entry.value == QLatin1String("true") ? Texts::tr("yes") : Texts::tr("no");
    if (entry.field->kind == REPORTGENERATOR::FieldKind::DateTime)
        return utcText(entry.value);
    return entry.field->unit() == QLatin1String("UTC") ? entry.value + QLatin1String(" UTC") : entry.value;
}

// Puts a page together; all texts are escaped here and nowhere else.
class Page
{
public:
    explicit Page(const QString& title)
    {
        m_html +=
            QStringLiteral(
                "<!DOCTYPE html>\n<html lang=\"%1\">\n<head>\n<meta charset=\"utf-8\">\n<title>%2</title>\n"
                "<style>\n%3</style>\n</head>\n<body>\n")
                .arg(Texts::tr("en", "the language of this page, as HTML names it"), escaped(title),
                     QLatin1String(STYLE));
        heading(1, title);
    }

    void heading(int level, const QString& text)
    {
        m_html += QStringLiteral("<h%1>%2</h%1>\n").arg(QString::number(level), escaped(text));
    }

    void paragraph(const QString& text) { m_html += QStringLiteral("<p>%1</p>\n").arg(escaped(text)); }

    // A sentence, with its full stop.
    void sentence(const QString& text)
    {
        paragraph(text.endsWith(QLatin1Char('.')) ? text : text + QLatin1Char('.'));
    }

    void beginTable(const QStringList& headings)
    {
        m_html += QLatin1String("<table>\n");
        cells(headings, QLatin1String("th"));
    }

    void row(const QStringList& texts) { cells(texts, QLatin1String("td")); }

    void rowUnlessEmpty(const QString& label, const QString& value)
    {
        if (!value.isEmpty())
            row({label, value});
    }

    void outline(const OutlineRow& entry, int level)
    {
        const QString label = QString(level, QChar(0x2003)) + entry.label;
        if (entry.isGroup)
            m_html += QStringLiteral("<tr><th colspan=\"2\">%1</th></tr>\n").arg(escaped(label));
        else
            row({label, valueText(entry)});
    }

    void endTable() { m_html += QLatin1String("</table>\n"); }

    QString finished() const { return m_html + QLatin1String("</body>\n</html>\n"); }

private:
    static QString escaped(const QString& text) { return text.toHtmlEscaped(); }

    void cells(const QStringList& texts, QLatin1String tag)
    {
        if (texts.isEmpty())
            return;
        m_html += QLatin1String("<tr>");
        for (const QString& text : texts)
            m_html += QStringLiteral("<%1>%2</%1>").arg(tag, escaped(text));
        m_html += QLatin1String("</tr>\n");
    }

    QString m_html;
};

QString titleOf(const QString& name, const QString& fallback)
{
    return name.trimmed().isEmpty() ? fallback : name.simplified();
}

void writeJob(const JobSession& session, const JobXml::JobInformation& job, Page* page)
{
    page->beginTable({});
    for (const OutlineRow& entry : Session::outlineRows(job))
        page->outline(entry, entry.level);
    page->row({Texts::tr("Sub-jobs"), QString::number(session.topLevelCount())});
    page->endTable();
    page->paragraph(Texts::tr("All times of day are UTC."));
}

void writeProblems(const QList<JobProblem>& problems, Page* page)
{
    page->heading(2, Texts::tr("Problems"));
    if (problems.isEmpty())
        return page->paragraph(Texts::tr("None were found."));
    page->beginTable({Texts::tr("Weight"), Texts::tr("Where"), Texts::tr("What")});
    for (const JobProblem& found : problems)
        page->row({Session::severityText(found.problem.severity),
                   Texts::tr("%1. %2").arg(QString::number(found.subjob + 1), found.place),
                   found.problem.text});
    page->endTable();
}

void writeReceivers(const QVector<ReceiverUse>& uses, Page* page)
{
    page->heading(2, Texts::tr("Receivers"));
    page->beginTable({Texts::tr("Receiver"), Texts::tr("Taken"), Texts::tr("Installed"), Texts::tr("Left")});
    for (const ReceiverUse& use : uses) {
        if (use.taken == 0)
            continue;
        page->row({use.toText(), QString::number(use.taken),
                   use.isOffered ? QString::number(use.quantity) : Texts::tr("not offered"),
                   !use.isOffered  ? QString()
                   : use.left >= 0 ? QString::number(use.left)
                                   : Texts::tr("%1 too many").arg(QString::number(-use.left))});
    }
    page->endTable();
}

void writeFrequencies(const JobXml::Subjob& subjob, const JEDVEPLUGIN::ResourceDescription* receiver,
                      Page* page)
{
    const Session::FrequencyUse use = Session::usedFrequencies(subjob);
    page->heading(3, Texts::tr("Frequencies"));
    if (!use.ranges.isEmpty()) {
        page->beginTable({Texts::tr("Range"), Texts::tr("Name"), Texts::tr("From")});
        for (const FrequencyRange& range : use.ranges)
            page->row({range.toText(), range.name, range.source});
        page->endTable();
    }
    for (const QString& sentence : use.untold)
        page->sentence(sentence);
    if (!receiver)
        return;
    const Session::FrequencyUse covered = Session::coveredFrequencies(*receiver);
    QStringList texts;
    for (const FrequencyRange& range : covered.ranges)
        texts.append(range.toText());
    if (!texts.isEmpty())
        page->sentence(Texts::tr("The receiver covers %1").arg(texts.join(QLatin1String(", "))));
    for (const QString& sentence : covered.untold)
        page->sentence(sentence);
}

void writeRevisitTimes(const JobXml::Subjob& subjob, Page* page)
{
    const QVector<RevisitTime> times = Session::revisitTimes(subjob);
    if (times.isEmpty())
        return;
    page->heading(3, Texts::tr("Revisit times (estimates)"));
    page->beginTable({});
    for (const RevisitTime& revisit : times)
        page->row({revisit.source,
                   revisit.isKnown ? Texts::tr("about %1").arg(Session::durationText(revisit.time))
                                   : Texts::tr("cannot be told"),
                   revisit.notes.join(QLatin1String(". ")) + QLatin1Char('.')});
    page->endTable();
    page->paragraph(Texts::tr(
        "A revisit time is an estimate for a range in which every frequency is free: for each step the "
        "settling time of the tuner and the longer one of dwell time and measurement time, then "
        "the pause."));
}

// Single values go into the open table, groups into one each of their own.
void writeSingles(const QVector<OutlineRow>& rows, Page* page)
{
    for (const OutlineRow& entry : rows) {
        if (entry.level == 0 && !entry.isGroup)
            page->outline(entry, 0);
    }
}

void writeGroups(const QVector<OutlineRow>& rows, Page* page)
{
    bool isOpen = false;
    for (const OutlineRow& entry : rows) {
        if (entry.level > 0) {
            page->outline(entry, entry.level - 1);
            continue;
        }
        if (isOpen)
            page->endTable();
        isOpen = entry.isGroup;
        if (!isOpen)
            continue;
        page->heading(3, entry.label);
        page->beginTable({});
    }
    if (isOpen)
        page->endTable();
}

// "Airband scan (TRV9KScanSettings/VUHF-1)", by the name that the installation gives it.
QString receiverText(const JobXml::Subjob& subjob, const JEDVEPLUGIN::ResourceDescription* receiver)
{
    const QString key = Session::resourceKey(subjob);
    return receiver ? Texts::tr("%1 (%2)").arg(receiver->getName(), key)
                    : Texts::tr("%1, which the installation does not offer").arg(key);
}

void writeSubjob(const JobSession& session, int index, const Session::JobComposer::Resources& resources,
                 Page* page)
{
    const JobSession::TopLevel& top = session.topLevel(index);
    JobXml::Subjob subjob;
    session.composeSubjob(index, &subjob, nullptr);
    const QString title = titleOf(subjob.GetName(), Texts::tr("Sub-job"));
    page->heading(2, Texts::tr("%1. %2").arg(QString::number(index + 1), title));

    const JEDVEPLUGIN::ResourceDescription* const receiver = Session::receiverOf(subjob, resources);
    JobXml::Subjob rest = subjob;
    rest.ResetName();
    rest.ResetSettings();
    rest.ResetResourceDescription();
    const QVector<OutlineRow> ownRows = Session::outlineRows(rest);
    const QVector<OutlineRow> settings = Session::outlineRows(subjob.GetSettings());
    page->beginTable({});
    page->row({Texts::tr("Receiver"), receiverText(subjob, receiver)});
    page->rowUnlessEmpty(Texts::tr("Receiver's name in the job"), subjob.GetResourceDescription().GetName());
    page->rowUnlessEmpty(Texts::tr("Record location"),
                         JobXml::ResourceDescription::GetGUIRecordLocations().value(
                             int(subjob.GetResourceDescription().GetRecordLocation())));
    writeSingles(ownRows, page);
    page->row(
        {Texts::tr("Plug-in"), top.factory ? top.factory->getName() : Texts::tr("none: %1").arg(top.reason)});
    page->endTable();
    writeFrequencies(subjob, receiver, page);
    writeRevisitTimes(subjob, page);
    writeGroups(ownRows, page);
    writeGroups(settings, page);
}
} // namespace

namespace Session {

QString jobSummary(const JobSession& session, const JobComposer::Resources& resources)
{
    const JobXml::JobInformation& job = session.document().job().GetJobInformation();
    Page page(titleOf(job.GetName(), Texts::tr("Job")));
    writeJob(session, job, &page);
    writeProblems(jobProblems(session, resources), &page);
    writeReceivers(receiverUses(session, resources), &page);
    if (session.topLevelCount() == 0)
        page.paragraph(Texts::tr("The job has no sub-jobs."));
    for (int i = 0; i < session.topLevelCount(); ++i)
        writeSubjob(session, i, resources, &page);
    return page.finished();
}

} // namespace Session
