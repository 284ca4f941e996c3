#pragma once

#include <QString>

namespace Session {

/// Makes an installation the one that the process works with: \p folder if it is not empty, else the one that the
/// environment variable JED_INSTALLATION names, else \p exampleFolder. To be called before anything is read from an
/// installation. GUI thread only.
/// \param error  receives what is wrong with the installation's configuration; may not be null
/// \return false if the chosen folder has no readable configuration; it is the chosen one all the same
bool chooseInstallation(const QString& folder, const QString& exampleFolder, QString* error);

/// Puts all texts into the language that the chosen installation names ("[Administration] Language"), English if it names
/// none. For programs with windows: what tools print is read by scripts, too.
/// \param error  receives why that language cannot be had; may not be null
/// \return false if there is no translation into it; the texts are English then
bool useLanguage(QString* error);

/// The folder of the installation that the process works with, absolute.
QString installationFolder();

/// The folder in which the library looks for tuner property files, absolute; empty if the configuration names none.
QString templateFolder();

} // namespace Session
