#pragma once

#include "elementpositions.h"
#include "finding.h"

#include <enjobtype.h>
#include <memory>
#include <QList>
#include <QString>
#include <QStringList>
#include <resourcedescription.h>

namespace JobXml {
class Subjob;
}

/// What is in an installation's tuner property files, and what is wrong with them.
namespace Session {

/// What became of one tuner property file.
struct ResourceFile
{
    enum Verdict {
        ACCEPTED, ///< the library offers it
        OUTDATED, ///< the library skips it and warns: its version is too old or no number
        SKIPPED,  ///< the library skips it: it cannot be read, or is no tuner property file
    };

    QString path;
    Verdict verdict = SKIPPED;
    std::shared_ptr<JEDVEPLUGIN::ResourceDescription> description; ///< null unless accepted
    Findings findings;                                             ///< with line and column
    ElementPositions::Position root;                               ///< where its element begins
};

/// Reads one file as the library does and looks at all that it says: schema, components, parameter sets, fields,
/// ranges and defaults.
ResourceFile examineResourceFile(const QString& path);

/// Every file that the library would look at, in its order.
QStringList resourceFiles(const QString& folder);

/// Looks at what files say about each other: one type and base resource in two files, parents and connectable
/// resources that are missing, parents in a circle. Findings are added to the files; files that were not accepted
/// count as not there.
void compareResourceFiles(QList<ResourceFile>* files);

/// The start-up modes that a sub-job of a receiver can have in a job of that type. A receiver that names none leaves the
/// choice to the job's type.
QStringList startupModes(const JEDVEPLUGIN::ResourceDescription& description, JEDVE::enJOB_TYPE jobType);

/// "TYPE/BASE", the name of a resource on command lines and in scenarios.
QString resourceKey(const JEDVEPLUGIN::ResourceDescription& description);
/// The same of the receiver that a sub-job names.
QString resourceKey(const JobXml::Subjob& subjob);

/// The receiver that a sub-job names, null if it is not among \p resources. Theirs.
const JEDVEPLUGIN::ResourceDescription*
receiverOf(const JobXml::Subjob& subjob,
           const QList<std::shared_ptr<JEDVEPLUGIN::ResourceDescription>>& resources);

} // namespace Session
