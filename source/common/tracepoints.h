#pragma once

namespace JEDVEPLUGIN {

/// Where a message comes from, as the installation's log filters match it: the bare name of the source file
/// and the line.
struct TracePoint
{
    const char* file;
    int line;
};

/// The files and lines that log filters rely on. They stay as they are wherever the code moves.
namespace TracePoints {

constexpr const char* JOB_XML_HANDLER = "jobxmlhandler";
constexpr const char* RESOURCE_HANDLING = "resourcehandling";
constexpr const char* SUB_SETTING_FACTORY = "jedsubsettingfactory";
constexpr const char* SELECTABLE_RESOURCE_MODEL = "selectableresourcemodel";
constexpr const char* ABSTRACT_SUB_SETTING_FACTORY = "jedabstractsubsettingfactory";
constexpr const char* COMMON_HELPER = "jedcommonhelper";
constexpr const char* MAP_VIEW_LAYER_MANAGER = "mapviewlayermanager";
constexpr const char* JOB_PROFILE_FACTORY = "jobprofilefactory";
constexpr const char* FREQUENCY_STORE_LIST_PROFILE = "frequencystorelistprofile";

constexpr TracePoint UNKNOWN_VALUE_ITEM{RESOURCE_HANDLING, 325};
constexpr TracePoint UNREADABLE_TUNER_PROPERTIES{RESOURCE_HANDLING, 342};
constexpr TracePoint NO_JOB_MANAGEMENT{RESOURCE_HANDLING, 356};
constexpr TracePoint NO_TEMPLATE_FOLDER{RESOURCE_HANDLING, 361};
constexpr TracePoint READING_RESOURCE_FILE{RESOURCE_HANDLING, 382};
constexpr TracePoint INVALID_RESOURCE_FILE{RESOURCE_HANDLING, 416};
constexpr TracePoint CANNOT_OPEN_RESOURCE_FILE{RESOURCE_HANDLING, 421};

constexpr TracePoint RESOURCE_IS_ITS_OWN_PARENT{SELECTABLE_RESOURCE_MODEL, 36};
constexpr TracePoint RESOURCE_WITHOUT_ITS_PARENT{SELECTABLE_RESOURCE_MODEL, 46};

constexpr TracePoint CANNOT_LOAD_COMPONENT{COMMON_HELPER, 69};
constexpr TracePoint CANNOT_OPEN_PGXML_FILE{COMMON_HELPER, 188};
constexpr TracePoint INVALID_SHAPE_PROFILE{COMMON_HELPER, 462};
constexpr TracePoint NO_SHAPE_PROFILE_FILE{COMMON_HELPER, 467};
constexpr TracePoint INVALID_PARAMETER_PROFILE{COMMON_HELPER, 507};
constexpr TracePoint NO_PARAMETER_PROFILE_FILE{COMMON_HELPER, 512};

} // namespace TracePoints

} // namespace JEDVEPLUGIN
