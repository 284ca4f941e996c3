#include "ruleobjectmanager.h"

#include <QCoreApplication>
#include <QFile>
#ifdef JED_HAS_QML
#include <QJSEngine>
#endif
#include <QScriptEngine>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <map>
#include <memory>

// One run of a rule: the whole script is evaluated, the host's value put on top, one function called. Measured by the
// straightforward way, which parses the text every time, and by the same with Qt's newer script engine.

namespace {

/// A script with that many functions and a variable that the host overrides.
QString scriptText(int functions)
{
    QString text = "var limit = 10;\nvar state = 0;\n";
    for (int i = 0; i < functions; ++i)
        text += QString("// The rule of value %1.\n"
                        "function value%1_changed() {\n"
                        "    var difference = limit - %1;\n"
                        "    if (difference > 0 && state === 0)\n"
                        "        state = difference * 2;\n"
                        "    else\n"
                        "        state = -1;\n"
                        "}\n")
                    .arg(i);
    return text;
}

JEDVEPLUGIN::RuleObjectManager& managerOf(int functions)
{
    static QTemporaryDir folder;
    static std::map<int, std::unique_ptr<JEDVEPLUGIN::RuleObjectManager>> managers;
    std::unique_ptr<JEDVEPLUGIN::RuleObjectManager>& manager = managers[functions];
    if (!manager) {
        QFile file(folder.filePath(QString("rules-%1.js").arg(functions)));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("the script cannot be written");
        file.write(scriptText(functions).toUtf8());
        file.close();
        manager = std::make_unique<JEDVEPLUGIN::RuleObjectManager>(file.fileName());
        manager->ReloadScriptAndRun("value1_changed");
        if (!manager->setScriptValue("limit", 20.0))
            qFatal("the script was not evaluated");
    }
    return *manager;
}

void ruleRun(benchmark::State& state)
{
    JEDVEPLUGIN::RuleObjectManager& manager = managerOf(int(state.range(0)));
    for (auto _ : state)
        manager.ReloadScriptAndRun("value1_changed");
}

void ruleRunNaive(benchmark::State& state)
{
    QScriptEngine engine;
    const QString text = scriptText(int(state.range(0)));
    for (auto _ : state) {
        engine.evaluate(text);
        engine.globalObject().setProperty("limit", 20.0);
        engine.globalObject().property("value1_changed").call(QScriptValue(), QScriptValueList());
    }
    if (engine.globalObject().property("state").toInt32() != 38)
        state.SkipWithError("the rule did not run");
}

#ifdef JED_HAS_QML
void ruleRunQJSEngine(benchmark::State& state)
{
    QJSEngine engine;
    const QString text = scriptText(int(state.range(0)));
    for (auto _ : state) {
        engine.evaluate(text);
        engine.globalObject().setProperty("limit", 20.0);
        engine.globalObject().property("value1_changed").call();
    }
    if (engine.globalObject().property("state").toInt() != 38)
        state.SkipWithError("the rule did not run");
}
#endif

} // namespace

BENCHMARK(ruleRun)->Arg(20)->Arg(200)->Arg(1000);
BENCHMARK(ruleRunNaive)->Arg(20)->Arg(200)->Arg(1000);
#ifdef JED_HAS_QML
BENCHMARK(ruleRunQJSEngine)->Arg(200);
#endif

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
