#pragma once

#include <spectraldetector/spectraldetector_export.h>

#include <QMap>
#include <QString>
#include <QStringList>

/// The spectral detector's files.
namespace SpectralDetector {

/// Reads the profile of a spectral detector: the shapes of spectra ("categories") that the detector tells
/// apart, and what it looks for in each. Usable on any thread, one object on one thread.
///
/// A profile file is XML in UTF-8 of up to 1 MiB, usually named "*.sdp":
///
///     <SpectralProfile version="1.0" name="Marine VHF">
///         <Category name="FM voice">
///             <Parameter name="Bandwidth" unit="Hz" minimum="6000" maximum="16000"/>
///             <Parameter name="Raster" unit="Hz" minimum="25000" maximum="25000"/>
///         </Category>
///         <Category name="Unmodulated"/>
///     </SpectralProfile>
///
/// The version is 1 or begins with "1."; the profile's name may be left out. A category has a name that no
/// other category has, and any number of parameters with names of which none is there twice. A parameter is a
/// range: both limits are finite numbers, the minimum not above the maximum; the unit may be left out. Other
/// elements, other attributes and text are errors, comments are not.
class SPECTRALDETECTOR_EXPORT SpectralDetectorProfile
{
public:
    /// The greatest size of a profile file.
    static constexpr qint64 MAX_SIZE = 1024 * 1024; // bytes

    /// Reads a profile and forgets the one before, also if this one cannot be read. The file itself is not
    /// kept open.
    /// \return false for a file that is missing, no regular file, too large or no profile; problem() says why
    bool open(const QString& fileName);
    /// Forgets everything.
    void close();
    bool isOpen() const { return m_open; }
    /// Why the last open() failed, with line and column if the content is to blame. Empty after success.
    QString problem() const { return m_problem; }

    /// The profile's own name, may be empty.
    QString name() const { return m_name; }
    /// In the order of the file; empty if no profile is open.
    QStringList categoryNames() const { return m_categoryNames; }
    /// The parameters of a category as an XML element of its own:
    /// <Parameters category="FM voice"><Parameter name="Bandwidth" …/></Parameters>. The element is there
    /// without children if the category has no parameters. A null string for an unknown category.
    QString categoryParameters(const QString& categoryName) const { return m_parameters.value(categoryName); }

private:
    bool m_open = false;
    QString m_problem;
    QString m_name;
    QStringList m_categoryNames;         // In the order of the file.
    QMap<QString, QString> m_parameters; // XML text by category.
};

} // namespace SpectralDetector
