#pragma once

#include <enjobtype.h>

#include <QList>
#include <QString>
#include <QStringList>

#include <limits>

namespace PluginKit {

/// Name of the setting type of sub-jobs, the one type that is created in a dialog.
constexpr const char* SUB_JOB = "SubJob";
/// Category of nodes that do not count as another type beside their siblings.
constexpr const char* GENERAL_SETTINGS = "GeneralSettings";

/// A kind of setting that a plug-in offers. A plain value.
struct SettingType
{
    QString type;        ///< "SubJob", or a name of the plug-in's own
    QString displayName; ///< for the user: in menus and, save for sub-jobs, in the tree
    QStringList
        parameterSets;    ///< what a node carries, as far as the receiver has it; each set in one type only
    QStringList children; ///< types that can be created below it
    QString icon;         ///< component type whose picture it has; empty: none, unless one is added
    QString category = QString(); ///< see ISubSetting::getSettingCategory()
    bool isInitial = false; ///< comes with a new sub-job when the receiver has one of its sets for certain
    int maxCount = 1;       ///< how many one parent may have; sub-jobs are not limited
};

/// Fields of a parameter set that are a region of the earth: Active, West, South, East and North (degrees), and Corner,
/// a list of "LONGITUDE LATITUDE", which a receiver need not offer. A plain value.
struct RegionFields
{
    QString parameterSet;
    QString group; ///< path of the fields in the set: "Region"

    bool operator==(const RegionFields& other) const
    {
        return parameterSet == other.parameterSet && group == other.group;
    }
};

/// All that makes a plug-in on this kit different from another one. A plain value.
struct PluginDeclaration
{
    QString name;                      ///< as for JEDSubSettingFactory
    QString description;               ///< what it is for, in one sentence for the user
    QString manual;                    ///< file in the installation's manuals; empty: none
    QString ruleFile;                  ///< script in the folder of rules, see SubjobRules; empty: none
    QList<JEDVE::enJOB_TYPE> jobTypes; ///< jobs that it can be used in
    QStringList resourceTypes;         ///< receivers that it can use
    QStringList requiredComponents;    ///< component types that such a receiver must have
    QList<SettingType> types;          ///< the first one is "SubJob"
    bool hasDetector = false;          ///< sub-jobs can have a detector
    bool isDetectorPreset = false;     ///< new ones have, unless the user says otherwise
    bool hasPreClassifier = false;     ///< sub-jobs can have a pre-classifier
    QList<RegionFields> regions = QList<RegionFields>(); ///< are shown on the map, see MapRegions
};

} // namespace PluginKit
