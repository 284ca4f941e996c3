#pragma once

#include "jobsession.h"

#include <freqstorexml/frequencystore.h>
#include <QStringList>
#include <reportlayer/irgobject.h>

namespace Session {

/// A list of frequencies of any format, as it is before somebody imports it.
struct ListPreview
{
    /// One entry, and what becomes of it.
    struct Row
    {
        int line = 0; ///< where it stands in a list of another program; in a frequency-store list its number
        QString name; ///< as the list says it
        QString source;  ///< frequency and mode, likewise; empty for a frequency-store list
        QString becomes; ///< what it sets, or why it is refused
        int entry = -1;  ///< position among the entries of \a list; -1: it is refused
    };

    QVector<Row> rows;
    QStringList leftOut; ///< parts with content that have no place in a frequency-store list
    FreqStoreXml::FrequencyStoreList list;
    QString failure;        ///< why the list as a whole is refused; there are no rows then
    bool isStopped = false; ///< by the one who watched

    /// The list with some of its entries only. \param entries  positions, in order
    FreqStoreXml::FrequencyStoreList listOf(const QVector<int>& entries) const;
};

/// Names of the parameter sets that entries of a list hold.
QStringList parameterSetsOf(const FreqStoreXml::FrequencyStoreList& list);

/// Formats of lists: "store", then those of frequencyFormats().
QStringList listFormats();
/// What a format is called, for a person to read.
QString listFormatText(const QString& format);
/// What a file looks like; "store" if it looks like nothing known.
QString guessListFormat(const QString& path);

/// \param format    one of listFormats()
/// \param progress  told now and then how far reading has come, and asked whether to go on; may be empty
ListPreview previewList(const QString& path, const QString& format,
                        const REPORTGENERATOR::ReadProgress& progress = {});

/// The setting that would take a list over when this one is current: itself or the nearest one above it; null if
/// none can.
JobSession::Setting* importTarget(const JobSession& session, JobSession::Setting* current);

/// Hands a list to the plug-in of a setting, in one step of undo.
/// \param made   receives the settings that came; may not be null
/// \param error  receives the reason, for a person to read
/// \return false if nothing was changed
bool importList(JobSession* session, JobSession::Setting* target,
                const FreqStoreXml::FrequencyStoreList& list, QList<JobSession::Setting*>* made,
                QString* error);

} // namespace Session
