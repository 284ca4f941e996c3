#pragma once

#include "finding.h"

#include <QJsonObject>

namespace FreqStoreXml {
class FrequencyStoreEntry;
class FrequencyStoreList;
} // namespace FreqStoreXml

namespace Session {

/// Reads a frequency-store list. \param list  as it was on failure
/// \return false, with a finding that says why, if the file is none
bool loadFrequencyList(const QString& path, FreqStoreXml::FrequencyStoreList* list, Findings* findings);

/// What is wrong with a list that has been loaded from \p path: against the schema, values that do not convert, and
/// whether plug-ins can take it as a profile.
Findings checkFrequencyList(const QString& path, FreqStoreXml::FrequencyStoreList* list);

/// What an entry sets, for a person to read: "156.8 MHz, 12.5 kHz, FM, 12.5 kHz".
QString frequencyEntryText(const FreqStoreXml::FrequencyStoreEntry& entry);

/// A line for each entry: number, name, settings.
QString frequencyListText(const FreqStoreXml::FrequencyStoreList& list);
/// The same as an object with "name" and "entries".
QJsonObject frequencyListJson(const FreqStoreXml::FrequencyStoreList& list);

} // namespace Session
