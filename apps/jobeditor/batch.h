#pragma once

#include <QString>

class EditorWindow;

namespace Session {
class JobSession;
}

/// Runs a scenario in the editor's window, without a person. Tells what was written, and what is wrong, on the
/// standard streams.
/// \return 0 if all steps were done, 1 if not, 2 if the scenario cannot be read
int runBatch(const QString& scenarioFile, EditorWindow* window, Session::JobSession* session);

/// For a run without a person: a map and settings of its own, gone when it ends. What was open before is not to be
/// seen in pictures, and a person's recent jobs stay.
void standAlone();

/// Tells why a scenario cannot be run at all. \return 2
int failBatch(const QString& reason);

/// The same style, font and colours everywhere, so that pictures do not depend on the machine. \param isDark  light
/// colours on dark windows, as for work at night
void useFixedLooks(bool isDark);
