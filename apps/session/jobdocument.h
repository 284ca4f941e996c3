#pragma once

#include "finding.h"

#include <enjobtype.h>
#include <jobxml/job.h>
#include <QByteArray>
#include <QString>

namespace Session {

/// A job and the file that it came from or goes to. What the model does not know of a file stays in it.
class JobDocument
{
public:
    /// Makes it a new job without sub-jobs and without a file.
    void begin(JEDVE::enJOB_TYPE type, const QString& name);

    /// Reads a job file. Values that do not convert are findings, but no failure: they are kept as they stand.
    /// \return false, with the document as it was, if the file cannot be read or is no job; the reason is a finding
    bool load(const QString& path, Findings* findings);

    /// Takes over the content of a job file, as load() does.
    /// \param path  the file that it belongs to; may be empty
    bool take(const QByteArray& content, const QString& path, Findings* findings);

    /// Writes the job in one piece, after validating it.
    /// \return false, with the old file untouched; the reason is a finding
    bool save(const QString& path, Findings* findings);

    /// Whether the job follows the schema; what does not is a finding. After load() with the position in the file.
    bool validate(Findings* findings);

    JobXml::Job& job() { return m_job; }
    const JobXml::Job& job() const { return m_job; }

    /// The job as it would be saved.
    QByteArray text() const;
    /// The bytes that load() found.
    const QByteArray& loadedText() const { return m_loadedText; }
    /// Empty before load() and save().
    const QString& path() const { return m_path; }

private:
    JobXml::Job m_job;
    QString m_path;
    QByteArray m_loadedText;
};

} // namespace Session
