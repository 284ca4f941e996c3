#pragma once

#include <freqstorexml/freqstorexml_export.h>
#include <QString>
#include <reportlayer/irgobject.h>

namespace FreqStoreXml {

class FrequencyStoreList;

/// Reads the files of frequency-store lists. Any thread, each object in one at a time.
class FREQSTOREXML_EXPORT FileHandling
{
public:
    /// \param progress  told how far reading has come, and asked whether to go on; empty: nobody is told
    explicit FileHandling(const REPORTGENERATOR::ReadProgress& progress = REPORTGENERATOR::ReadProgress());

    /// Whether a file says of itself that it is a frequency-store list: by its first element, nothing behind it
    /// is looked at. False too for what is not there, for pipes, devices and folders, and above 64 MiB.
    bool IsValidFormat(const QString& file) const;
    /// Reads the whole file. Values that do not convert are left out (IRGObject::problems() names them).
    /// \param list  replaced; as it was if the operation throws
    /// \throw REPORTGENERATOR::RGException with file, line and reason if the file cannot be read, is no list or
    ///        malformed, or if reading was stopped
    void ImportXml(const QString& file, FrequencyStoreList& list) const;

private:
    REPORTGENERATOR::ReadProgress m_progress;
};

} // namespace FreqStoreXml
