#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>
#include <reportlayer/irgobject.h>

namespace FreqStoreXml {
class FrequencyStoreList;
}

namespace Session {

/// One entry of a list of another program, and what becomes of it.
struct ImportedLine
{
    int line = 0;      ///< where it begins in the list, from 1
    QString name;      ///< as the list says it
    QString frequency; ///< likewise, in the unit of the list
    QString mode;      ///< likewise

    QString reason; ///< why it is refused, without a full stop; empty: it is taken

    // Of an entry that is taken:
    QString entryName;             ///< one line; where the list has no name, the frequency
    qint64 hertz = 0;              ///< frequency
    QString demodulation;          ///< as the schema names it
    qint64 bandwidth = 0;          ///< Hz
    bool isUsualBandwidth = false; ///< the list names none: it is the usual one of the mode

    bool isTaken() const { return reason.isEmpty(); }
    /// "156.8 MHz, FM, 12.5 kHz" or "refused: " and the reason.
    QString becomes() const;
};

/// What a list of another program becomes.
struct FrequencyImport
{
    QList<ImportedLine> lines; ///< every entry, in the order of the list
    QStringList
        leftOut;     ///< columns and other parts with content that frequency-store lists have no place for
    QString format;  ///< "gqrx"
    QString failure; ///< why the list as a whole is refused, without a full stop; nothing is taken then
    int failureLine = 0;    ///< from 1; 0 if it has none
    bool isStopped = false; ///< by the one who watched; nothing is taken then

    int takenCount() const;
    int refusedCount() const { return lines.size() - takenCount(); }
    /// All entries that are taken, each with tuner settings, analogue demodulation and where it comes from.
    /// \param name  of the list
    FreqStoreXml::FrequencyStoreList toList(const QString& name) const;
};

/// Lists larger than this are not read, in bytes.
constexpr qint64 MAX_LIST_SIZE = 16 * 1024 * 1024;
/// Lists with more entries than this are refused.
constexpr int MAX_LIST_ENTRIES = 100000;

/// "gqrx", "sdrsharp", "sdrpp" and "chirp": bookmarks.csv of gqrx, frequencies.xml of SDR#, exported bookmarks (JSON) of
/// SDR++, CSV files of CHIRP.
QStringList frequencyFormats();
/// What a format is called, for a person to read; null for one that does not exist.
QString frequencyFormatText(const QString& format);
/// The format that the beginning of a list looks like; null if it looks like none.
QString guessFrequencyFormat(const QByteArray& content);

/// Reads a list of another program. Modes are translated by a table for each format: one that has no counterpart is
/// refused, as is a frequency that is not a whole number of hertz or outside what a frequency-store list may hold.
/// \param format    one of frequencyFormats(); another fails
/// \param progress  told now and then how far reading has come, and asked whether to go on; may be empty
FrequencyImport importFrequencies(const QByteArray& content, const QString& format,
                                  const REPORTGENERATOR::ReadProgress& progress = {});
/// The same for a file: a regular one of at most MAX_LIST_SIZE bytes, others fail without being opened.
FrequencyImport importFrequencyFile(const QString& path, const QString& format,
                                    const REPORTGENERATOR::ReadProgress& progress = {});

} // namespace Session
