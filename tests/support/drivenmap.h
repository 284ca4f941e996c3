#pragma once

#include <mapview/mapcanvas.h>
#include <mapview/mapwindow.h>

#include <QApplication>
#include <QProcess>
#include <QSocketNotifier>
#include <support/testmain.h>

#include <csignal>
#include <cstdio>
#include <memory>
#include <unistd.h>

namespace JedTest {

/// The map program in another process, with a person who does there what the test says. The test's own program is that
/// process when it is called with ARGUMENT and the name of the socket.
class DrivenMap
{
public:
    static constexpr const char* ARGUMENT = "--map";

    explicit DrivenMap(const QString& server)
        : m_server(server)
    {
    }
    ~DrivenMap() { kill(); }

    bool start()
    {
        m_process = std::make_unique<QProcess>();
        m_process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process->start(QCoreApplication::applicationFilePath(), {ARGUMENT, m_server});
        return answer() == QStringLiteral("ready");
    }
    void kill()
    {
        if (!m_process)
            return;
        m_process->kill();
        m_process->waitForFinished();
        m_process.reset();
    }
    void suspend() { ::kill(pid_t(m_process->processId()), SIGSTOP); }
    void resume() { ::kill(pid_t(m_process->processId()), SIGCONT); }
    qint64 processId() const { return m_process->processId(); }

    /// "key KEYS [alt|ctrl|shift]", "click X Y", "select ID...", "zoom FACTOR", "layer NAME on|off" or "show", which
    /// answers with all objects.
    QString ask(const QString& command)
    {
        m_process->write(command.toUtf8() + '\n');
        m_process->waitForBytesWritten();
        return answer();
    }

private:
    QString answer()
    {
        constexpr int LONG_TIME = 20000; // ms
        while (!m_process->canReadLine() && m_process->waitForReadyRead(LONG_TIME)) {
        }
        return QString::fromUtf8(m_process->readLine()).trimmed();
    }

    QString m_server;
    std::unique_ptr<QProcess> m_process;
};

/// The other side: obeys what comes over the standard input.
class MapPerson
{
public:
    explicit MapPerson(MapWindow* window)
        : m_window(window)
        , m_canvas(window->canvas())
    {
    }

    QString obey(const QStringList& words)
    {
        const QString what = words.value(0);
        if (what == QLatin1String("key"))
            QTest::keyClick(m_canvas, Qt::Key(QKeySequence(words.value(1))[0]), modifier(words.value(2)));
        else if (what == QLatin1String("click"))
            QTest::mouseClick(m_canvas, Qt::LeftButton, Qt::NoModifier,
                              m_canvas->viewport()
                                  .toPixels(QPointF(words.value(1).toDouble(), words.value(2).toDouble()))
                                  .toPoint());
        else if (what == QLatin1String("zoom"))
            m_canvas->zoom(words.value(1).toDouble());
        else if (what == QLatin1String("layer"))
            markLayer(words.value(1), words.value(2) == QLatin1String("on"));
        else if (what == QLatin1String("show"))
            return text();
        return QStringLiteral("done");
    }

private:
    static Qt::KeyboardModifier modifier(const QString& name)
    {
        return name == QLatin1String("alt")     ? Qt::AltModifier
               : name == QLatin1String("ctrl")  ? Qt::ControlModifier
               : name == QLatin1String("shift") ? Qt::ShiftModifier
                                                : Qt::NoModifier;
    }

    void markLayer(const QString& name, bool isVisible)
    {
        for (const auto& layer : m_window->scene()->layers()) {
            if (layer->name == name)
                m_window->scene()->setLayerVisible(layer->client, layer->id, isVisible);
        }
    }

    // Layers with their objects; "*": selected.
    QString text() const
    {
        QStringList lines;
        for (const auto& layer : m_window->scene()->layers()) {
            QStringList words{layer->name +
                              (layer->isVisible ? QStringLiteral(":") : QStringLiteral(" (hidden):"))};
            for (const auto& entry : layer->groups) {
                const MapGroup& group = entry.second;
                QString word = group.name;
                for (const QPointF& point : group.points)
                    word += QStringLiteral(" %1,%2").arg(point.x()).arg(point.y());
                if (m_window->scene()->selection().contains(group.key))
                    word += QLatin1Char('*');
                words << word;
            }
            lines << words.join(QStringLiteral(" | "));
        }
        return lines.join(QStringLiteral(" || "));
    }

    MapWindow* m_window;
    MapCanvas* m_canvas;
};

/// What main() of the test calls when it is the map.
inline int runDrivenMap(int argc, char** argv)
{
    const auto application = makeApplication(argc, argv);
    MapWindow window;
    QString error;
    if (!window.listen(QString::fromUtf8(argv[2]), &error))
        qFatal("%s", qPrintable(error));
    window.show();
    if (!QTest::qWaitForWindowActive(&window))
        qFatal("the window is not active");
    MapPerson person(&window);
    QByteArray input;
    QSocketNotifier notifier(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, &window, [&] {
        char bytes[4096];
        const ssize_t count = read(STDIN_FILENO, bytes, sizeof bytes);
        if (count <= 0)
            return QCoreApplication::quit();
        input.append(bytes, int(count));
        for (int end = input.indexOf('\n'); end >= 0; end = input.indexOf('\n')) {
            const QString answer = person.obey(QString::fromUtf8(input.left(end)).split(QLatin1Char(' ')));
            input.remove(0, end + 1);
            std::puts(answer.toUtf8().constData());
            std::fflush(stdout);
        }
    });
    std::puts("ready");
    std::fflush(stdout);
    return QCoreApplication::exec();
}

} // namespace JedTest
