#pragma once

#include "jedvepb_export.h"
#include "jobxmlhandler.h"

#include <QtCore/QList>
#include <QtCore/QString>

namespace JobXml {
class SignalDescription;
}

namespace JEDVEPLUGIN {

/// Ready-made settings for a list of frequencies, out of a file of another tool. Made by JobProfileFactory. GUI
/// thread only.
///
/// There is no virtual destructor: a profile is held by the shared pointer that it was made with, and never deleted
/// through this interface.
class IJobProfile
{
public:
    virtual int getEntryCount() const = 0;
    /// The parameter sets that an entry can set, by number; empty for an entry that does not exist.
    virtual QList<JobXmlHandler::enJOB_SETTING_TYPES> getSettingTypes(int index) const = 0;
    /// What the tool calls the profile that an entry belongs to; empty for an entry without one.
    virtual QString getProfileID(int index) const = 0;
    /// The same for people.
    virtual QString getProfileName(int index) const = 0;
    /// Merges what an entry says of a parameter set into that set: fields that the entry leaves open stay.
    /// \param xml  the parameter set's element; empty for a set without content
    /// \return false, with the text as it was, for an entry that does not exist, for a set that the profile does
    ///         not deal with, and if the text cannot be read
    virtual bool modifySetting(int index, const JobXmlHandler::enJOB_SETTING_TYPES& type, QString& xml) = 0;
    /// Whether anything can be imported: there are entries, and they are all of one kind.
    virtual bool isApplicable() const = 0;
    /// Adds the whole list as one signal description, named "Profile Import".
    /// \param xml          the element "SignalDescriptions"; empty for one without content
    /// \param description  the description that is appended; its list is replaced
    /// \return false, with the text as it was, if the profile is not applicable or the text cannot be read
    virtual bool importSignalDescription(QString& xml, JobXml::SignalDescription& description) = 0;
    /// Whether the entries are settings for short-time signals.
    virtual bool isShortTimeProfile() const = 0;

protected:
    ~IJobProfile() = default;
};

} // namespace JEDVEPLUGIN
