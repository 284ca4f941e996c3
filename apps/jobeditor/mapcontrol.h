#pragma once

#include <QObject>
#include <QPointer>
#include <QProcess>
#include <QStringList>

class QAction;
class QLabel;
class QMainWindow;

namespace JEDVEPLUGIN {
class MapViewLayerManager;
}
namespace Session {
class JobSession;
}

/// The map of the editor: starts the map program when somebody wants it and there is none, tells in the status bar
/// whether there is a link, and makes each change that the user makes on the map a step of undo of its own. A map
/// program that was started here ends with the editor; one that was there before stays.
class MapControl : public QObject
{
    Q_OBJECT
public:
    /// \param window   where the state is shown
    /// \param session  whose settings are on the map; both must outlive this object
    /// \param program  the map program
    MapControl(QMainWindow* window, Session::JobSession* session, const QString& program = defaultProgram());
    ~MapControl() override;

    /// For a menu; owned by this object.
    QAction* action() const { return m_action; }

    /// Beside the editor.
    static QString defaultProgram();
    /// What it is started with.
    static QStringList arguments();
    /// A name for the local socket that no other map program has. For runs without a person, which draw on no map of
    /// somebody's.
    static void useMapOfItsOwn();

private:
    void open();
    void showLink(bool isLinked);
    void tellFailure();

    QMainWindow* m_window;
    const QString m_program;
    QPointer<JEDVEPLUGIN::MapViewLayerManager> m_map; // The application's.
    QAction* m_action;
    QLabel* m_state; // Qt owns it.
    QProcess m_process;
};
