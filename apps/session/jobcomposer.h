#pragma once

#include "finding.h"

#include <memory>
#include <QList>
#include <QString>
#include <QStringList>
#include <resourcedescription.h>
#include <vector>

class ValueBase;

namespace JobXml {
class Subjob;
}

namespace Session {

class JobDocument;

/// Composes a job without a window: sub-jobs on receivers of the installation, each with a value tree that the
/// receiver's components fill with defaults and ranges, and values set by name.
///
/// Operations that return false have changed nothing and leave the reason in fault(). GUI thread only.
class JobComposer
{
public:
    using Resources = QList<std::shared_ptr<JEDVEPLUGIN::ResourceDescription>>;

    /// \param resources  the receivers that can be used; of two with one type and base resource the first counts
    explicit JobComposer(const Resources& resources);
    ~JobComposer();

    /// Starts a new job; what was composed before is dropped.
    /// \param type  "Search" and so on
    /// \param name  empty: the type
    bool begin(const QString& type, const QString& name);

    /// Appends a sub-job and makes it the current one.
    /// \param resource     "TYPE/BASE"
    /// \param startupMode  name, or the text that users are shown; empty: the first one that receiver and type of job
    ///                     allow
    bool addSubjob(const QString& resource, const QString& startupMode);

    /// Makes a sub-job the current one. \param number  from 1
    bool selectSubjob(int number);

    /// Sets a value of the current sub-job. \param path  "SET/FIELD"
    bool setValue(const QString& path, const QString& text);

    /// A value of the current sub-job, null if there is none of that path. Owned by the composer.
    ValueBase* value(const QString& path);

    int subjobCount() const { return int(m_subjobs.size()); }

    /// Builds the job. Optional components count when one of their values was set. What a
    /// job file cannot hold is a finding.
    /// \return false if no job was begun
    bool compose(JobDocument* document, Findings* findings);

    /// Why the last operation returned false; without place and line.
    const Finding& fault() const { return m_fault; }

private:
    struct Subjob;

    bool refuse(const QString& text, const QString& advice = QString());
    QString chooseStartupMode(const JEDVEPLUGIN::ResourceDescription& resource, const QString& wanted);
    JobXml::Subjob composeSubjob(const Subjob& subjob, const QString& place, Findings* findings) const;

    Resources m_resources;
    QString m_type; // Empty: no job yet.
    QString m_name;
    std::vector<std::unique_ptr<Subjob>> m_subjobs;
    Subjob* m_current = nullptr; // Not owned.
    Finding m_fault;
};

} // namespace Session
