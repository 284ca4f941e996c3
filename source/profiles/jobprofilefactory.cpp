#include "jobprofilefactory.h"

#include "common/tracing_p.h"
#include "frequencystorelistprofile.h"

#include <freqstorexml/filehandling.h>
#include <reportlayer/rgexception.h>

namespace JEDVEPLUGIN {

std::shared_ptr<IJobProfile> JobProfileFactory::getProfile(const QString& file)
{
    try {
        static const FreqStoreXml::FileHandling FORMATS;
        if (FORMATS.IsValidFormat(file))
            return std::make_shared<FrequencyStoreListProfile>(file);
        traceError({TracePoints::JOB_PROFILE_FACTORY, __LINE__},
                   QStringLiteral("JobProfileFactory::getProfile(%1) - no applicable JobProfile class found")
                       .arg(file));
    } catch (const REPORTGENERATOR::RGException& exception) {
        traceError({TracePoints::JOB_PROFILE_FACTORY, __LINE__},
                   QStringLiteral("JobProfileFactory::getProfile(%1) - RGExcpetion: %2")
                       .arg(file, exception.GetMessage()));
    } catch (...) {
        traceError({TracePoints::JOB_PROFILE_FACTORY, __LINE__},
                   QStringLiteral("JobProfileFactory::getProfile(%1) - Exception caught").arg(file));
    }
    return nullptr;
}

} // namespace JEDVEPLUGIN
