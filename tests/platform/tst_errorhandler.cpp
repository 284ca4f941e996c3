#include <support/tracerecorder.h>
#include <zubase/errorhandler.h>
#include <zubase/trace.h>
#include <zubase/zuexception.h>

#include <QThread>

#include <cstdlib>

class TstErrorHandler : public QObject
{
    Q_OBJECT
private slots:
    void instanceIsOne();
    void errorsAloneAreTracedAtFirst();
    void maskIsKept();
    void traceReachesQtsLogging();
    void loggingCanBeSwitchedOff();
    void traceDoesNotAskTheMask();
    void sinksAreToldInOrder();
    void removedSinkIsNotTold();
    void emptySinkIsRefused();
    void sinkMayTraceAndRemoveItself();
    void sinkThatThrowsDoesNotSilenceTheOthersForEver();
    void traceFromAnotherThread();
    void exceptionTellsReasonAndPlace_data();
    void exceptionTellsReasonAndPlace();
};

namespace {

struct LoggedMessage
{
    QtMsgType type;
    QString category;
    QString file;
    int line;
    QString text;
};

LoggedMessage s_logged;

void keepMessage(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    s_logged = {type, context.category, context.file, context.line, text};
}

/// Catches what goes to Qt's logging while it lives.
class LoggingCatcher
{
public:
    LoggingCatcher()
        : m_former(qInstallMessageHandler(keepMessage))
    {
        s_logged = {};
    }
    ~LoggingCatcher() { qInstallMessageHandler(m_former); }

private:
    QtMessageHandler m_former;
};

TraceSink sinkInto(QStringList* log, const QString& name)
{
    return [log, name](const TraceRecord& record) { log->append(name + ' ' + record.message); };
}

/// Traces when all static objects of this program go, which the handler has to outlive.
class AtTheEnd
{
public:
    ~AtTheEnd()
    {
        QStringList log;
        const int id = ErrorHandler::Instance()->AddTraceSink(sinkInto(&log, "sink"));
        ErrorHandler::Instance()->Dispatch({"late", "file", 1});
        if (ErrorHandler::Instance() != m_handler || log != QStringList("sink late"))
            std::_Exit(EXIT_FAILURE);
        ErrorHandler::Instance()->RemoveTraceSink(id);
    }
    void arm() { m_handler = ErrorHandler::Instance(); }

private:
    ErrorHandler* m_handler = nullptr;
};

AtTheEnd s_atTheEnd; // Made before the handler, so it goes after everything static that the handler could be.

/// A sink for the life of the object.
class ScopedSink
{
public:
    explicit ScopedSink(const TraceSink& sink)
        : m_id(ErrorHandler::Instance()->AddTraceSink(sink))
    {
    }
    ~ScopedSink() { ErrorHandler::Instance()->RemoveTraceSink(m_id); }
    int id() const { return m_id; }

private:
    Q_DISABLE_COPY(ScopedSink)

    int m_id;
};

} // namespace

void TstErrorHandler::instanceIsOne()
{
    QVERIFY(ErrorHandler::Instance() != nullptr);
    s_atTheEnd.arm();
    QCOMPARE(ErrorHandler::Instance(), ErrorHandler::Instance());
}

void TstErrorHandler::errorsAloneAreTracedAtFirst()
{
    QCOMPARE(ErrorHandler::Instance()->GetTraceMask(), 0x20u);
    QCOMPARE(ErrorHandler::TRACE_ERRORS, 0x20u);
    QCOMPARE(ErrorHandler::TRACE_JOB_TYPE, 0x40u);
}

void TstErrorHandler::maskIsKept()
{
    const JedTest::TraceMask mask(0xFFFFFFFFu);
    QCOMPARE(ErrorHandler::Instance()->GetTraceMask(), 0xFFFFFFFFu);
    ErrorHandler::Instance()->SetTraceMask(0);
    QCOMPARE(ErrorHandler::Instance()->GetTraceMask(), 0u);
}

void TstErrorHandler::traceReachesQtsLogging()
{
    const LoggingCatcher catcher;
    _Q_Trace("100 %1 %s done", "resourcehandling", 382);
    QCOMPARE(s_logged.type, QtInfoMsg);
    QCOMPARE(s_logged.category, QString("jobeditorve.trace"));
    QCOMPARE(s_logged.file, QString("resourcehandling"));
    QCOMPARE(s_logged.line, 382);
    QCOMPARE(s_logged.text, QString("100 %1 %s done"));

    _Q_Trace(QString::fromUtf8("Köln"), nullptr, 0);
    QCOMPARE(s_logged.file, QString());
    QCOMPARE(s_logged.text, QString::fromUtf8("Köln"));
}

void TstErrorHandler::loggingCanBeSwitchedOff()
{
    const LoggingCatcher catcher;
    JedTest::TraceRecorder recorder;
    _Q_Trace("quiet", "file", 1);
    QCOMPARE(s_logged.text, QString());
    QCOMPARE(recorder.take(), QStringList{"file:1: quiet"});
}

void TstErrorHandler::traceDoesNotAskTheMask()
{
    JedTest::TraceRecorder recorder;
    const JedTest::TraceMask mask(0);
    _Q_Trace("anyway", "file", 7);
    QCOMPARE(recorder.take(), QStringList{"file:7: anyway"});
}

void TstErrorHandler::sinksAreToldInOrder()
{
    JedTest::TraceRecorder recorder;
    QStringList log;
    const ScopedSink first(sinkInto(&log, "first"));
    const ScopedSink second(sinkInto(&log, "second"));
    QVERIFY(first.id() > 0);
    QVERIFY(second.id() != first.id());
    _Q_Trace("a", nullptr, -1);
    QCOMPARE(log, (QStringList{"first a", "second a"}));
    QCOMPARE(recorder.take(), QStringList{":-1: a"});
}

void TstErrorHandler::removedSinkIsNotTold()
{
    JedTest::TraceRecorder recorder;
    QStringList log;
    const int id = ErrorHandler::Instance()->AddTraceSink(sinkInto(&log, "gone"));
    QVERIFY(ErrorHandler::Instance()->RemoveTraceSink(id));
    QVERIFY(!ErrorHandler::Instance()->RemoveTraceSink(id));
    QVERIFY(!ErrorHandler::Instance()->RemoveTraceSink(0));
    _Q_Trace("a", "file", 1);
    QCOMPARE(log, QStringList());
}

void TstErrorHandler::emptySinkIsRefused()
{
    QCOMPARE(ErrorHandler::Instance()->AddTraceSink(TraceSink()), 0);
}

void TstErrorHandler::sinkMayTraceAndRemoveItself()
{
    JedTest::TraceRecorder recorder;
    QStringList log;
    int id = 0;
    id = ErrorHandler::Instance()->AddTraceSink([&](const TraceRecord& record) {
        log.append(record.message);
        _Q_Trace("from inside", "sink", 2);
        ErrorHandler::Instance()->RemoveTraceSink(id);
    });
    _Q_Trace("once", "file", 1);
    _Q_Trace("twice", "file", 1);
    QCOMPARE(log, QStringList{"once"});
    QCOMPARE(recorder.take(), (QStringList{"file:1: once", "file:1: twice"}));
}

void TstErrorHandler::sinkThatThrowsDoesNotSilenceTheOthersForEver()
{
    JedTest::TraceRecorder recorder;
    {
        const ScopedSink bad([](const TraceRecord&) { throw ZuException("bad sink"); });
        QVERIFY_EXCEPTION_THROWN(_Q_Trace("a", "file", 1), ZuException);
    }
    recorder.take();
    _Q_Trace("b", "file", 2);
    QCOMPARE(recorder.take(), QStringList{"file:2: b"});
}

void TstErrorHandler::traceFromAnotherThread()
{
    JedTest::TraceRecorder recorder;
    const Qt::HANDLE testThread = QThread::currentThreadId();
    Qt::HANDLE sinkThread = testThread;
    const ScopedSink sink([&](const TraceRecord&) { sinkThread = QThread::currentThreadId(); });
    const std::unique_ptr<QThread> thread(QThread::create([] { _Q_Trace("elsewhere", "file", 3); }));
    thread->start();
    QVERIFY(thread->wait());
    QVERIFY(sinkThread != testThread);
    QCOMPARE(recorder.take(), QStringList{"file:3: elsewhere"});
}

void TstErrorHandler::exceptionTellsReasonAndPlace_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("what");
    QTest::newRow("all") << QStringList{"unable to create VT node", "JEDAbstractSubSetting", "initialize"}
                         << QByteArray("JEDAbstractSubSetting::initialize: unable to create VT node");
    QTest::newRow("no method") << QStringList{"reason", "Class", ""} << QByteArray("Class: reason");
    QTest::newRow("no class") << QStringList{"reason", "", "method"} << QByteArray("method: reason");
    QTest::newRow("reason only") << QStringList{"reason", "", ""} << QByteArray("reason");
    QTest::newRow("nothing") << QStringList{"", "", ""} << QByteArray();
    QTest::newRow("not ASCII") << QStringList{QString::fromUtf8("größer"), "", ""} << QByteArray("größer");
}

void TstErrorHandler::exceptionTellsReasonAndPlace()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, what);
    try {
        throw ZuException(arguments[0], arguments[1], arguments[2]);
    } catch (const std::exception& failure) {
        QCOMPARE(QByteArray(failure.what()), what);
        const auto* const exception = dynamic_cast<const ZuException*>(&failure);
        QVERIFY(exception != nullptr);
        QCOMPARE(exception->GetErrorReason(), arguments[0]);
        QCOMPARE(exception->GetErrorClass(), arguments[1]);
        QCOMPARE(exception->GetErrorMethod(), arguments[2]);
    }
}

QTEST_GUILESS_MAIN(TstErrorHandler)
#include "tst_errorhandler.moc"
