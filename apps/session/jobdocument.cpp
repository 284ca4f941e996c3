#include "jobdocument.h"

#include "savefile.h"

#include <QCoreApplication>

namespace {
QString translate(const char* source)
{
    return QCoreApplication::translate("Session::JobDocument", source);
}
} // namespace

namespace Session {

bool JobDocument::load(const QString& path, Findings* findings)
{
    QByteArray bytes;
    QString reason;
    if (!readFile(path, &bytes, &reason)) {
        findings->append(
            {Finding::FAILURE, path, 0, 0, translate("cannot be read: %1").arg(reason), QString()});
        return false;
    }
    JobXml::Job job;
    if (!job.SetXmlString(decodedText(bytes), true)) {
        findings->append({Finding::FAILURE, path, job.GetCheckLine(), job.GetCheckColumn(),
                          job.GetCheckReason(), translate("This is no job file, or it is damaged.")});
        return false;
    }
    for (const REPORTGENERATOR::Problem& problem : job.problems()) {
        findings->append({Finding::WARNING, path, problem.line, problem.column, problem.reason,
                          translate("The text is kept as it stands, but it counts for nothing.")});
    }
    m_job = job;
    m_path = path;
    m_loadedText = bytes;
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
    findings->append({Finding::FAILURE, path, 0, 0, translate("cannot be written: %1").arg(reason),
                      translate("The file is as it was before.")});
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
                          translate("The job does not follow the schema of job files.")});
    return isValid;
}

QByteArray JobDocument::text() const
{
    return m_job.GetXmlString(true).toUtf8();
}

} // namespace Session
