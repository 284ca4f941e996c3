#pragma once

#include "frequencyimport.h"

/// What the readers of the formats have in common. Each format is a file of its own with a function at its end.
namespace Session {

/// An entry as a list says it.
struct SourceEntry
{
    int line = 0; // from 1
    QString name;
    QString frequency; // in the unit of the format
    QString mode;
    QString bandwidth; // in Hz; empty: none given
    QString fault;     // why it cannot be understood, empty if it can
};

/// A mode of a format that has a counterpart.
struct ModeCounterpart
{
    const char* mode;         // case does not count
    const char* demodulation; // as the schema names it
    qint64 usualBandwidth;    // Hz, for entries without one
};

/// Takes the entries of a list one after the other and decides about each.
class EntryCollector
{
public:
    /// \param modes     of the format, ends with a row without a mode; kept by reference
    /// \param decimals  digits behind the point that a whole number of hertz has: 0 for Hz, 6 for MHz
    /// \param result    filled, not owned
    EntryCollector(const ModeCounterpart* modes, int decimals, const REPORTGENERATOR::ReadProgress& progress,
                   FrequencyImport* result);

    /// \param done, total  how far reading has come, in any unit
    /// \return false, with the failure in the result, when reading is to end
    bool take(const SourceEntry& entry, int done, int total);
    /// Notes that the list holds something, with content, that has no place in the result.
    void leaveOut(const QString& what);
    /// The list as a whole is refused. \param line  from 1; 0: none
    void fail(int line, const QString& reason);

private:
    QString decide(const SourceEntry& entry, ImportedLine* line) const;
    static QString decideBandwidth(const QString& bandwidth, qint64 usual, ImportedLine* line);
    const ModeCounterpart* counterpart(const QString& mode) const;

    const ModeCounterpart* m_modes;
    int m_decimals;
    const REPORTGENERATOR::ReadProgress& m_progress;
    FrequencyImport* m_result;
};

/// How a format is read.
struct FrequencyFormat
{
    const char* name;
    const char* text;             // for a person, marked for translation
    const ModeCounterpart* modes; // ends with a row without a mode
    int decimals;                 // see EntryCollector
    bool (*isLike)(const QString& beginning);
    void (*read)(const QString& text, EntryCollector* collector);
};

extern const FrequencyFormat GQRX_BOOKMARKS;
extern const FrequencyFormat SDRSHARP_FREQUENCIES;
extern const FrequencyFormat SDRPP_BOOKMARKS;
extern const FrequencyFormat CHIRP_CSV;

} // namespace Session
