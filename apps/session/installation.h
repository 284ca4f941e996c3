#pragma once

#include <QString>

namespace Session {

/// Makes an installation the one that the process works with: \p folder if it is not empty, else the one that the
/// environment variable JED_INSTALLATION names, else \p exampleFolder. To be called before anything is read from an
/// installation. Texts are in the language that its configuration names ("[Administration] Language"), otherwise
/// in English. GUI thread only.
/// \param error  receives what is wrong with the installation's configuration; may not be null
/// \return false if the chosen folder has no readable configuration; it is the chosen one all the same
bool chooseInstallation(const QString& folder, const QString& exampleFolder, QString* error);

/// The folder of the installation that the process works with, absolute.
QString installationFolder();

/// The folder in which the library looks for tuner property files, absolute; empty if the configuration names none.
QString templateFolder();

} // namespace Session
