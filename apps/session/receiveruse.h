#pragma once

#include "jobcomposer.h"

#include <QVector>

namespace Session {

class JobSession;

/// How much of one kind of receiver a job takes when all its sub-jobs run. A receiver and its parts share what the
/// installation has of the whole.
struct ReceiverUse
{
    QString name; ///< empty if the installation does not offer it
    QString type;
    QString baseResource;
    bool isOffered = false;
    qint64 quantity = 0; ///< what the installation has
    qint64 taken = 0;    ///< of this kind itself
    qint64 occupied = 0; ///< with all its parts
    qint64 left =
        0; ///< what can still be taken, the wholes that it is a part of considered; below 0: too many
    QVector<int> takers; ///< positions of the sub-jobs that take it or a part of it, rising

    /// Whether the job takes more of it and its parts than there is.
    bool isOverused() const { return isOffered && occupied > quantity; }
    /// "Airband scan (TRV9KScanSettings/VUHF-1)", without a name what stands in the brackets.
    QString toText() const;
};

/// One for each receiver of the installation, in its order (of two with one type and base resource the first counts),
/// then those that the job takes though the installation does not offer them. What sub-jobs without a plug-in take
/// counts as well.
QVector<ReceiverUse> receiverUses(const JobSession& session, const JobComposer::Resources& resources);

} // namespace Session
