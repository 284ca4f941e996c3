#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace JobXml {
class Subjob;
}

namespace Session {

/// How long it takes until a receiver comes back to a frequency. An estimate: every frequency counts as free, and what
/// the receiver needs beside the times that the job names is left out.
///
///     time  = steps * stay + pause
///     stay  = settling time of the tuner + the longer one of dwell time and measurement time
///     steps = (to - from) / step width, rounded down, plus 1, less the steps that are suppressed
///     steps = (to - from) / bandwidth of the tuner, rounded up, in a panorama
///
/// In a list, each entry in use is a step, and stays for its own dwell time (a transmitter) or that of the list.
struct RevisitTime
{
    QString source;      ///< the scan or list, as the user sees it, with the name of the band
    bool isKnown = true; ///< false: \a notes tell why not
    qint64 steps = 0;
    double time = 0;   ///< ms
    QStringList notes; ///< what else to know, whole sentences without a full stop
};

/// One for each scan or list of the sub-job, in the order of the file.
QVector<RevisitTime> revisitTimes(const JobXml::Subjob& subjob);

/// A time of so many milliseconds as people say it, three digits long at most: "49.8 s", "12 min 30 s", "3 d 4 h".
QString durationText(double time);

} // namespace Session
