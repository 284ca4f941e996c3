#include "resourcedescription.h"

#include <QStringList>
#include <QXmlStreamReader>

#include <benchmark/benchmark.h>

// Reading tuner property files of 44 KiB into descriptions, against a bare pass of Qt's reader over the same texts.

using JEDVEPLUGIN::ResourceDescription;

namespace {

const int FILES = 200;
const int FILE_SIZE = 44 * 1024; // characters

QString sampleItems(int number)
{
    return QStringLiteral(
               "      <ValueItem>\n"
               "        <ValueNumericInt64 id=\"CenterFrequency%1\" value=\"156800000\" min=\"20000000\" "
               "max=\"3000000000\" step=\"12500\"/>\n"
               "      </ValueItem>\n"
               "      <ValueItem>\n"
               "        <ValueSelection id=\"GainControl%1\" index=\"0\">\n"
               "          <SelectionItem name=\"Automatic\" value=\"0\"/>\n"
               "          <SelectionItem name=\"Manual\" value=\"1\"/>\n"
               "          <SelectionItem name=\"Frozen\" value=\"2\"/>\n"
               "        </ValueSelection>\n"
               "      </ValueItem>\n"
               "      <ValueItem>\n"
               "        <ValueNumericFloat id=\"Gain%1\" value=\"30\" min=\"-30\" max=\"130\" "
               "step=\"0.5\"/>\n"
               "      </ValueItem>\n"
               "      <ValueItem>\n"
               "        <ValueBoolean id=\"Preamplifier%1\" value=\"false\"/>\n"
               "      </ValueItem>\n")
        .arg(number);
}

QString sampleFile(int number)
{
    QString text =
        QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                       "<TunerProperties name=\"Receiver %1\" type=\"HT720\" baseresource=\"HF-%1\" "
                       "quantity=\"2\" version=\"1.2\">\n"
                       "  <StartupModes>\n    <StartupMode>Manual</StartupMode>\n  </StartupModes>\n"
                       "  <Component type=\"TunerSettingsComponent\" name=\"TunerSettingsComponent\">\n"
                       "    <Node id=\"TunerSettings\">\n")
            .arg(number);
    for (int i = 0; text.size() < FILE_SIZE; ++i)
        text += sampleItems(number + i);
    return text + QStringLiteral("    </Node>\n  </Component>\n</TunerProperties>\n");
}

const QStringList& sampleFiles()
{
    static const QStringList files = [] {
        QStringList made;
        for (int i = 0; i < FILES; ++i)
            made.append(sampleFile(i));
        return made;
    }();
    return files;
}

void descriptions(benchmark::State& state)
{
    for (auto _ : state) {
        for (const QString& text : sampleFiles()) {
            const ResourceDescription description(text);
            if (!description.isValid())
                state.SkipWithError("a file is not valid");
        }
    }
}

void rawPass(benchmark::State& state)
{
    for (auto _ : state) {
        for (const QString& text : sampleFiles()) {
            QXmlStreamReader reader(text);
            while (!reader.atEnd())
                benchmark::DoNotOptimize(reader.readNext());
            if (reader.hasError())
                state.SkipWithError("a file is malformed");
        }
    }
}

} // namespace

BENCHMARK(descriptions)->Unit(benchmark::kMillisecond);
BENCHMARK(rawPass)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
