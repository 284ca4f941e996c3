#include <spectraldetector/spectraldetectorprofile.h>

#include <spectraldetector/profilereader_p.h>

namespace SpectralDetector {

bool SpectralDetectorProfile::open(const QString& fileName)
{
    close();
    ProfileReader reader;
    if (!reader.read(fileName, MAX_SIZE)) {
        m_problem = reader.problem();
        return false;
    }
    m_name = reader.name();
    for (const ProfileReader::Category& category : reader.categories()) {
        m_categoryNames.append(category.name);
        m_parameters.insert(category.name, category.parameters);
    }
    m_open = true;
    return true;
}

void SpectralDetectorProfile::close()
{
    *this = SpectralDetectorProfile();
}

} // namespace SpectralDetector
