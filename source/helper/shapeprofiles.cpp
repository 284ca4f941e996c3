#include "common/tracing_p.h"
#include "jedcommonhelper.h"

#include <spectraldetector/spectraldetectorprofile.h>

#include <QtCore/QCache>
#include <QtCore/QDir>
#include <QtCore/QTemporaryFile>
#include <QtCore/QXmlStreamReader>

namespace JEDVEPLUGIN {

namespace {

using SpectralDetector::SpectralDetectorProfile;

const int CACHED_PROFILES = 10;

// The detector's reader takes files only.
template <typename Read>
void readProfile(const QByteArray& bytes, const TracePoint& noFile, const TracePoint& invalidProfile,
                 Read read)
{
    QTemporaryFile file(QDir::tempPath() + QLatin1String("/SpectralProfileXXXXXX.sdp"));
    if (!file.open()) {
        traceError(noFile, QLatin1String("Error opening temporary file for Spectral Profile"));
        return;
    }
    file.write(bytes);
    file.close();
    SpectralDetectorProfile profile;
    if (!profile.open(file.fileName())) {
        traceError(invalidProfile, QLatin1String("Error opening Spectral Profile - invalid format?"));
        return;
    }
    read(profile);
    profile.close();
}

// Failures are kept as well, as what they give: nothing.
template <typename Content, typename Read>
Content cachedContent(QCache<QByteArray, Content>& cache, const QByteArray& profile, Read read)
{
    if (const Content* cached = cache.object(profile))
        return *cached;
    Content content;
    if (!profile.isEmpty())
        read(content);
    cache.insert(profile, new Content(content));
    return content;
}

} // namespace

QStringList JEDCommonHelper::getGenericShapes(const QByteArray& profile)
{
    if (profile.isEmpty())
        return QStringList();
    return {QStringLiteral("AM"), QStringLiteral("CARRIER"), QStringLiteral("FSK2"), QStringLiteral("MC")};
}

QStringList JEDCommonHelper::getProfileShapes(const QByteArray& profile)
{
    static QCache<QByteArray, QStringList> cache(CACHED_PROFILES);
    return cachedContent(cache, profile, [&profile](QStringList& shapes) {
        readProfile(profile, TracePoints::NO_SHAPE_PROFILE_FILE, TracePoints::INVALID_SHAPE_PROFILE,
                    [&shapes](const SpectralDetectorProfile& opened) { shapes = opened.categoryNames(); });
    });
}

QMap<QString, QString> JEDCommonHelper::getProfileShapesAndParameter(const QByteArray& profile)
{
    static QCache<QByteArray, QMap<QString, QString>> cache(CACHED_PROFILES);
    return cachedContent(cache, profile, [&profile](QMap<QString, QString>& shapes) {
        readProfile(profile, TracePoints::NO_PARAMETER_PROFILE_FILE, TracePoints::INVALID_PARAMETER_PROFILE,
                    [&shapes](const SpectralDetectorProfile& opened) {
                        for (const QString& name : opened.categoryNames())
                            shapes.insert(name, opened.categoryParameters(name));
                    });
    });
}

bool JEDCommonHelper::isShapeParameterProducable(const QString& xml)
{
    QXmlStreamReader reader(xml);
    return reader.readNextStartElement() && reader.readNextStartElement();
}

} // namespace JEDVEPLUGIN
