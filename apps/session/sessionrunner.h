#pragma once

#include "jobsession.h"
#include "scenario.h"

#include <QStringList>

namespace FreqStoreXml {
class FrequencyStoreList;
}

namespace Session {

/// Runs a scenario on a job session: the settings are made and changed by the plug-ins, as in the editor. GUI thread
/// only.
class SessionRunner
{
public:
    /// Draws what the user would see; all give false if the file could not be written.
    class Artist
    {
    public:
        virtual ~Artist();
        /// The window with the editor of a setting.
        virtual bool drawSetting(JobSession::Setting* current, const QString& file) = 0;
        /// The dialog for a new sub-job, with a type of receivers and a type of detector chosen.
        virtual bool drawDialog(const QString& type, const QString& detector, const QString& file) = 0;
        /// The window with one of its docks in front: "problems", "frequencies", "resources", "trace" or "rules".
        /// \return false as well for a dock that there is not
        virtual bool drawDock(const QString& name, JobSession::Setting* current, const QString& file) = 0;
        /// The map with the regions of all settings, as the user sees it who edits one.
        virtual bool drawMap(JobSession::Setting* current, const QString& file) = 0;
        /// The dialog that shows a list of frequencies before a setting takes it over; nothing here.
        virtual bool drawImport(JobSession::Setting* target, const QString& list, const QString& file);
        /// A window that the editor opens by its menu: "summary", "apply" or "plugins"; nothing here.
        virtual bool drawWindow(const QString& name, JobSession::Setting* current, const QString& file);
    };

    /// \param artist  for the steps "picture", "dialog", "dock", "map", "preview" and "window"; null: there are no pictures. Not owned.
    SessionRunner(JobSession* session, Artist* artist);

    /// Runs the steps up to the first that cannot be done.
    /// \return false if there was one; the reason is the last finding
    bool run(const Scenario& scenario);

    const Findings& findings() const { return m_findings; }
    /// What was written, in order.
    const QStringList& files() const { return m_files; }

private:
    bool runStep(const Scenario::Step& step);
    bool begin(const QStringList& arguments);
    bool open(const QStringList& arguments);
    bool add(const QStringList& arguments);
    bool set(const QStringList& arguments);
    bool setInText(JobSession::Setting* setting, const QString& parameterSet, const QString& fieldPath,
                   const QString& text);
    bool select(const QStringList& arguments);
    bool expect(const QStringList& arguments);
    bool import(const QStringList& arguments);
    bool save(const QStringList& arguments);
    bool picture(const QStringList& arguments);
    bool dialog(const QStringList& arguments);
    bool dock(const QStringList& arguments);
    bool map(const QStringList& arguments);
    bool previewImport(const QStringList& arguments);
    bool window(const QStringList& arguments);
    bool wait(const QStringList& arguments);
    bool drawn(bool isWritten, const QString& file);
    bool refuse(const QString& text, const QString& advice = QString());
    JobSession::Setting* carrierOf(const QString& parameterSet);
    QString besideScenario(const QString& file) const;
    JobSession::Setting* targetOf(const FreqStoreXml::FrequencyStoreList& list);

    JobSession* m_session; // Not owned.
    Artist* m_artist;      // Not owned.
    Findings m_findings;
    QStringList m_files;
    int m_current = -1;                     // Top-level setting.
    JobSession::Setting* m_shown = nullptr; // What was set last, for pictures. The session's.
    QString m_place;
    int m_line = 0;
};

} // namespace Session
