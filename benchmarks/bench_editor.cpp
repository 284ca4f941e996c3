// The job editor's window, with the plug-ins that the build made and the example installation: what a person waits
// for.

#include "widgetbenchmarks.h"

#include <isubsetting.h>
#include <jobeditor/editorwindow.h>
#include <QAbstractSpinBox>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QUndoStack>
#include <session/installation.h>
#include <session/jobsession.h>
#include <session/pluginhost.h>
#include <session/recovery.h>
#include <session/savefile.h>

using JEDVEPLUGIN::ISubSetting;
using Session::Findings;
using Session::JobSession;
using Session::PluginHost;

namespace {

constexpr int SMALL_JOB = 1000;
constexpr int LARGE_JOB = 10000;

int countOf(ISubSetting* setting)
{
    int count = 1;
    for (int i = 0; i < setting->childCount(); ++i)
        count += countOf(setting->child(i));
    return count;
}

/// Plug-ins, session and window, with a search job of at least so many settings.
class Editor
{
public:
    explicit Editor(int settings)
    {
        QString error;
        Session::chooseInstallation(JED_SOURCE_DIR "/installation", QString(), &error);
        m_host.load(PluginHost::defaultFolders());
        m_session = std::make_unique<JobSession>(m_host.factories());
        m_window = std::make_unique<EditorWindow>(&m_host, m_session.get());
        m_window->show();
        if (settings > 0)
            fill(settings);
        settle();
    }
    ~Editor()
    {
        m_session->undoStack()->setClean();
        m_window->close();
    }

    JobSession& session() { return *m_session; }
    EditorWindow& window() { return *m_window; }

    /// Everything that is put off until the event loop is reached.
    static void settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

private:
    void fill(int settings)
    {
        Session::JobDocument document;
        Findings findings;
        document.load(JED_SOURCE_DIR "/installation/Jobs/surveillance.xml", &findings);
        m_session->open(document.path(), &findings);
        const int each = countOf(m_session->settingAt({0}));
        const JobXml::Subjob subjob = document.job().GetSubjob().first();
        for (int i = 0; i * each < settings; ++i)
            document.job().AppendSubjob(subjob);
        const QTemporaryDir folder;
        const QString path = folder.filePath("large.xml");
        Session::saveFile(path, document.text(), nullptr);
        m_window->openFile(path);
    }

    PluginHost m_host;
    std::unique_ptr<JobSession> m_session;
    std::unique_ptr<EditorWindow> m_window;
};

/// One editor at a time, kept for as long as benchmarks want a job of this size.
Editor& editorWith(int settings)
{
    static std::unique_ptr<Editor> s_editor;
    static int s_settings = -1;
    // Windows have to go before the application.
    if (s_settings == -1)
        qAddPostRoutine([] { s_editor.reset(); });
    if (s_settings != settings) {
        s_editor.reset();
        s_editor = std::make_unique<Editor>(settings);
        s_settings = settings;
    }
    return *s_editor;
}

ISubSetting* findSetting(ISubSetting* setting, const QString& set)
{
    if (setting->parameterSetNames().contains(set))
        return setting;
    for (int i = 0; i < setting->childCount(); ++i) {
        if (ISubSetting* const found = findSetting(setting->child(i), set))
            return found;
    }
    return nullptr;
}

void setFrequency(JobSession* session, ISubSetting* tuner, int frequency)
{
    QString xml = tuner->parameterSetText("TunerSettings");
    const int begin = xml.indexOf("<CenterFrequency>") + int(qstrlen("<CenterFrequency>"));
    xml.replace(begin, xml.indexOf('<', begin) - begin, QString::number(frequency));
    session->endEditStep();
    session->setParameterSet(tuner, "TunerSettings", xml);
}

/// From nothing to a window that takes input, plug-ins and receivers included.
void start(benchmark::State& state)
{
    editorWith(-2);
    for (auto _ : state) {
        Editor editor(0);
        benchmark::DoNotOptimize(&editor);
    }
}

/// The part of it that has nothing to do with windows.
void startWithoutWindow(benchmark::State& state)
{
    editorWith(-2);
    for (auto _ : state) {
        PluginHost host;
        host.load(PluginHost::defaultFolders());
        const JobSession session(host.factories());
        benchmark::DoNotOptimize(&session);
    }
}

/// An edit of one value is taken back, and everything in the window shows it.
void undoOneEdit(benchmark::State& state)
{
    Editor& editor = editorWith(int(state.range(0)));
    JobSession& session = editor.session();
    ISubSetting* const tuner = findSetting(session.settingAt({session.topLevelCount() / 2}), "TunerSettings");
    int frequency = 7000000;
    for (auto _ : state) {
        state.PauseTiming();
        setFrequency(&session, tuner, frequency += 1000);
        Editor::settle();
        state.ResumeTiming();
        session.undoStack()->undo();
        Editor::settle();
    }
}

/// The longest that the event loop stood still is a counter, in ms.
void arrowHeldDown(benchmark::State& state)
{
    Editor& editor = editorWith(int(state.range(0)));
    ISubSetting* const tuner = findSetting(editor.session().settingAt({0}), "AntennaSettings");
    editor.window().setCurrentSetting(tuner);
    Editor::settle();
    QAbstractSpinBox* box = nullptr;
    for (auto* candidate : tuner->getWidget()->findChildren<QAbstractSpinBox*>())
        box = box ? box : candidate;
    if (!box)
        return state.SkipWithError("no spin box");
    qint64 longest = 0;
    int steps = 0;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        box->stepBy(++steps % 20 < 10 ? 1 : -1);
        Editor::settle();
        longest = std::max(longest, timer.elapsed());
    }
    state.counters["longest_ms"] = double(longest);
}

/// The copy for recovery after one edit.
void keepCopy(benchmark::State& state)
{
    JobSession& session = editorWith(int(state.range(0))).session();
    const QTemporaryDir folder;
    Session::Recovery recovery(&session, folder.path());
    ISubSetting* const tuner = findSetting(session.settingAt({0}), "TunerSettings");
    int frequency = 7000000;
    // It was not there when the job was read, and knows nothing of it yet.
    setFrequency(&session, tuner, frequency);
    recovery.keep();
    for (auto _ : state) {
        state.PauseTiming();
        setFrequency(&session, tuner, frequency += 1000);
        state.ResumeTiming();
        recovery.keep();
    }
}

BENCHMARK(start)->Unit(benchmark::kMillisecond);
BENCHMARK(startWithoutWindow)->Unit(benchmark::kMillisecond);
BENCHMARK(undoOneEdit)->Arg(SMALL_JOB)->Arg(LARGE_JOB)->Unit(benchmark::kMillisecond);
BENCHMARK(arrowHeldDown)->Arg(SMALL_JOB)->Arg(LARGE_JOB)->Unit(benchmark::kMillisecond);
BENCHMARK(keepCopy)->Arg(SMALL_JOB)->Arg(LARGE_JOB)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    return runWidgetBenchmarks(argc, argv);
}
