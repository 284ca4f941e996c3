#pragma once

#include <jobxml/job.h>
#include <support/tracerecorder.h>

#include <QMap>
#include <QRegularExpression>

namespace JobFileParts {

struct SetName
{
    const char* name;
    int number;
};
const SetName SET_NAMES[] = {
    {"ActivityGeneration", 0},    {"AntennaSettings", 1},
    {"ADemSettings", 2},          {"DF_Settings", 3},
    {"DDemSettings", 5},          {"ClassifierSettings", 6},
    {"TunerSettings", 7},         {"FFTSettings", 8},
    {"ScanSettings", 9},          {"ShortTime_Settings", 12},
    {"AlarmSettings", 13},        {"StorageSettings", 14},
    {"EDSettings", 15},           {"DSCSettings", 4},
    {"JobAutomaticSettings", 16}, {"AutoRecordingSettings", 17},
    {"SignalDescriptions", 18},   {"FHPJobSettings", 19},
    {"CompressionSettings", 20},
};

/// One text field of each element, by the element's name.
const QMap<QString, QString> FIELDS = {
    {"ActivityGeneration", "Comment"},
    {"AntennaSettings", "AntennaName"},
    {"Audio_Settings", "SquelchThreshold"},
    {"DF_Settings", "Threshold"},
    {"DSC_Settings", "Threshold"},
    {"Demodulator_Settings", "MinimumQuality"},
    {"Classification_Settings", "Library"},
    {"FFM_Settings", "ChannelName"},
    {"FFTSettings", "Overlap"},
    {"Scan_Settings", "CyclePause"},
    {"ShortTime_Settings", "SignalName"},
    {"AlarmSettings", "Message"},
    {"EDSettings", "MaskName"},
    {"JobAutomaticSettings", "OperatorGroup"},
    {"AutoRecordingSettings", "Comment"},
    {"SignalDescriptions", "ProfileName"},
    {"ST_Settings", "NetName"},
    {"CompressionSettings", "Quality"},
    {"FrequencyListSettings", "DwellTime"},
    {"TransmitterListSettings", "Cycles"},
    {"Detail", "DwellTime"},
};

/// An element that holds one value in its field of the table above.
inline QString element(const QString& name, int value)
{
    return QString("<%1><%2>%3</%2></%1>").arg(name, FIELDS.value(name), QString::number(value));
}

/// A settings, sub-job or item object all of whose named parts hold the value 1.
template <typename Owner>
void fill(Owner& owner, const QString& root, const QStringList& parts)
{
    QString text;
    for (const QString& part : parts)
        text += element(part, 1);
    if (!owner.SetXmlString(QString("<%1>%2</%1>").arg(root, text), false))
        qFatal("the test's own text does not load: %s", qPrintable(owner.GetCheckReason()));
}

const QStringList SETTINGS_PARTS = {"AntennaSettings",
                                    "Audio_Settings",
                                    "DF_Settings",
                                    "DSC_Settings",
                                    "Demodulator_Settings",
                                    "Classification_Settings",
                                    "FFM_Settings",
                                    "FFTSettings",
                                    "Scan_Settings",
                                    "FrequencyListSettings",
                                    "TransmitterListSettings",
                                    "ShortTime_Settings",
                                    "AlarmSettings",
                                    "EDSettings",
                                    "JobAutomaticSettings",
                                    "SignalDescriptions",
                                    "ST_Settings"};
const QStringList SUBJOB_PARTS = {"ActivityGeneration", "AutoRecordingSettings", "CompressionSettings"};
const QStringList ITEM_PARTS = {"Audio_Settings", "DF_Settings", "FFM_Settings", "FFTSettings", "Detail"};

/// The parts of an object by name, each with the value of its field of the table above.
template <typename Owner>
QMap<QString, QString> values(const Owner& owner)
{
    static const QRegularExpression part("\\n  <(\\w+)>(.*?)\\n  </\\1>",
                                         QRegularExpression::DotMatchesEverythingOption);
    const QString text = owner.GetXmlString();
    QMap<QString, QString> found;
    auto match = part.globalMatch(text);
    while (match.hasNext()) {
        const auto next = match.next();
        const QString field = FIELDS.value(next.captured(1));
        const QRegularExpression value(QString("\\n    <%1>(.*?)</%1>").arg(field));
        found.insert(next.captured(1), value.match(next.captured(2)).captured(1));
    }
    return found;
}

const QString MESSAGE = "The parameter set <%1> is not supported by the job file structure";

/// Whether the one trace of the recorder is the message about that name, whatever its line.
inline bool isReported(JedTest::TraceRecorder& recorder, const QString& name)
{
    const QStringList lines = recorder.take();
    const QRegularExpression expected("^jobxmlhandler:[1-9][0-9]*: " +
                                      QRegularExpression::escape(QString(MESSAGE).replace("%1", name)) + "$");
    return lines.size() == 1 && expected.match(lines.first()).hasMatch();
}

} // namespace JobFileParts
