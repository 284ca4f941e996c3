#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace JEDVEPLUGIN {
class ResourceDescription;
}
namespace JobXml {
class Subjob;
}

namespace Session {

/// A range of frequencies that a parameter set names.
struct FrequencyRange
{
    qint64 from = 0;      ///< Hz
    qint64 to = 0;        ///< Hz, not below \a from
    bool isBand = false;  ///< a middle with a bandwidth around it, not two edges
    QString name;         ///< of the band, channel or transmitter; may be empty
    QString source;       ///< the parameter set or list, as the user sees it
    QString parameterSet; ///< empty for a list, which is no parameter set
    QString field;        ///< path of the field that leads to it ("Range.StartFrequency")

    /// "118 MHz … 136.975 MHz", "121.5 MHz ± 4 kHz", or one frequency.
    QString toText() const;
};

/// Frequencies, and what could not be told about them.
struct FrequencyUse
{
    QVector<FrequencyRange> ranges; ///< in the order of the file
    QStringList untold;             ///< whole sentences without a full stop
};

/// Which frequencies a sub-job works at: scans, fixed frequencies with their bandwidths, hopping bands, and the entries
/// of lists that are used. Signals that are merely looked for do not count, nor does what an antenna is good for.
FrequencyUse usedFrequencies(const JobXml::Subjob& subjob);

/// Which frequencies a receiver covers, by the limits of its values for the same fields; what overlaps is one range.
/// Ranges have no name and lead nowhere.
FrequencyUse coveredFrequencies(const JEDVEPLUGIN::ResourceDescription& receiver);

/// A frequency with its unit: "136.975 MHz".
QString frequencyText(qint64 frequency);

} // namespace Session
