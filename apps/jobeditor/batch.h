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

/// Light colours on dark windows, as for work at night.
void useDarkColours();
