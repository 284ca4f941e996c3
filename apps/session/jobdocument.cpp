#include "jobdocument.h"

#include "savefile.h"

#include <jedcommonhelper.h>
#include <QCoreApplication>
#include <QDateTime>

namespace {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Session::JobDocument)
};

// Reproducible where the environment asks for it.
QString timeOfMaking()
{
    bool isFixed = false;
    const qint64 seconds = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&isFixed);
    const QDateTime now =
        isFixed ? QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC) : QDateTime::currentDateTimeUtc();
    return now.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ssZ"));
}
} // namespace

namespace Session {

void JobDocument::begin(JEDVE::enJOB_TYPE type, const QString& name)
{
    *this = JobDocument();
    JobXml::JobInformation& information = m_job.GetJobInformation();
    information.SetJobType(JEDVEPLUGIN::JEDCommonHelper::JobTypeToJobXmlType(type));
    information.SetName(name);
    information.SetCreated(timeOfMaking());
}

bool JobDocument::load(const QString& path, Findings* findings)
{
    QByteArray bytes;
    QString reason;
    if (!readFile(path, &bytes, &reason)) {
        findings->append(
            {Finding::FAILURE, path, 0, 0, Texts::tr("cannot be read: %1").arg(reason), QString()});
        return false;
    }
    return take(bytes, path, findings);
}

bool JobDocument::take(const QByteArray& content, const QString& path, Findings* findings)
{
    JobXml::Job job;
    if (!job.SetXmlString(decodedText(content), true)) {
        findings->append({Finding::FAILURE, path, job.GetCheckLine(), job.GetCheckColumn(),
                          job.GetCheckReason(), Texts::tr("This is no job file, or it is damaged.")});
        return false;
    }
    for (const REPORTGENERATOR::Problem& problem : job.problems()) {
        findings->append({Finding::WARNING, path, problem.line, problem.column, problem.reason,
                          Texts::tr("The text is kept as it stands, but it counts for nothing.")});
    }
    m_job = job;
    m_path = path;
    m_loadedText = content;
    return true;
}

bool JobDocument::save(const QString& path, Findings* findings)
{
    QString reason;
    m_path = path;
    if (!validate(findings))
        return false;
    if (saveFile(path, text(), &reason))
        return true;
    findings->append({Finding::FAILURE, path, 0, 0, Texts::tr("cannot be written: %1").arg(reason),
                      Texts::tr("The file is as it was before.")});
    return false;
}

bool JobDocument::validate(Findings* findings)
{
    m_job.SetValidate(true);
    const bool isValid = m_job.Check();
    m_job.SetValidate(false);
    if (!isValid)
        findings->append({Finding::FAILURE, m_path, m_job.GetCheckLine(), m_job.GetCheckColumn(),
                          m_job.GetCheckReason(),
                          Texts::tr("The job does not follow the schema of job files.")});
    return isValid;
}

QByteArray JobDocument::text() const
{
    return m_job.GetXmlString(true).toUtf8();
}

} // namespace Session
