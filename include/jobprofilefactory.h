#pragma once

#include "ijobprofile.h"
#include "jedvepb_export.h"

#include <memory>

namespace JEDVEPLUGIN {

/// Finds out what kind of profile a file is. GUI thread only.
class JEDVEPB_EXPORT JobProfileFactory
{
public:
    /// Reads a file of whatever kind is known: frequency-store lists.
    /// \return empty, with the reason traced, if the file is of no known kind or cannot be read
    static std::shared_ptr<IJobProfile> getProfile(const QString& file);

private:
    JobProfileFactory();
};

} // namespace JEDVEPLUGIN
