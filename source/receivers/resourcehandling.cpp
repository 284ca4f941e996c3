#include "common/textfile_p.h"
#include "common/tracing_p.h"
#include "componentdescriptor.h"
#include "parametersetmapper.h"
#include "resourcedescription.h"

#include <jobxml/tunerproperties.h>
#include <quilappstartup/cfgcenter.h>
#include <reportlayer/rgexception.h>
#include <values/node.h>
#include <values/valuelist.h>
#include <values/valuenumeric.h>
#include <values/valueselection.h>
#include <zubase/zuexception.h>

#include <algorithm>
#include <cmath>
#include <exception>
#include <iterator>
#include <limits>
#include <optional>

#include <QCoreApplication>
#include <QDir>
#include <QMessageBox>

namespace JEDVEPLUGIN {

namespace {

// What the configuration objects are asked for with.
const int ADMINISTRATION_VIEW = 2;
const int JOB_MANAGEMENT_VIEW = 4;

const double OLDEST_VERSION = 1.1;

/// Position of the first node of that id, -1 if there is none.
int positionOf(const QVector<JobXml::Node>& nodes, const QString& id)
{
    const auto found = std::find_if(nodes.cbegin(), nodes.cend(),
                                    [&id](const JobXml::Node& node) { return node.Getid() == id; });
    return found == nodes.cend() ? -1 : static_cast<int>(found - nodes.cbegin());
}

template <class Kind, class Item>
ValueBase* newValue(const Item& item)
{
    auto value = std::make_unique<Kind>();
    value->SetName(item.Getid());
    value->SetValue(item.Getvalue());
    return value.release();
}

template <class Kind, class Item>
ValueBase* newNumeric(const Item& item)
{
    auto value = std::make_unique<Kind>();
    value->SetName(item.Getid());
    value->SetMinMax(item.Getmin(), item.Getmax(), item.Getstep());
    value->SetValue(item.Getvalue());
    return value.release();
}

/// Towards zero; what an int cannot hold becomes its limit, what is no number 0.
int truncated(double number)
{
    if (std::isnan(number))
        return 0;
    return static_cast<int>(
        std::clamp<double>(number, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

bool isAcceptableVersion(const QString& version)
{
    bool isNumber = false;
    return version.isEmpty() || (version.toDouble(&isNumber) >= OLDEST_VERSION && isNumber);
}

/// Where the tuner property files are unless the installation has a folder of its own for them, with the
/// separators of Windows.
QString usualTemplateFolder()
{
    return CfgCenter::Instance()
               ->GetAdminCfg(ADMINISTRATION_VIEW)
               ->GetString(QStringLiteral("VelmoDataDir"), QString()) +
           QStringLiteral("\\TemplateFolder\\");
}

/// The folder as the configuration has it, the usual one if that cannot be asked.
QString configuredTemplateFolder(const QString& usual)
{
    try {
        Cfg* const jobManagement =
            CfgCenter::Instance()->CreateCfg(QStringLiteral("JobManagement"), JOB_MANAGEMENT_VIEW, QString());
        return jobManagement == nullptr ? usual
                                        : jobManagement->GetString(QStringLiteral("TemplateFolder"), usual);
    } catch (const ZuException& failure) {
        traceError(
            TracePoints::NO_JOB_MANAGEMENT,
            QStringLiteral("no configuration of the job management: %1").arg(failure.GetErrorReason()));
        return usual;
    }
}

/// The same as a folder of this system; an empty text if there is none.
QString templateFolder()
{
    try {
        QString folder = configuredTemplateFolder(usualTemplateFolder());
#ifndef Q_OS_WIN
        folder.replace(QLatin1Char('\\'), QLatin1Char('/'));
#endif
        return folder;
    } catch (const ZuException& failure) {
        traceError(TracePoints::NO_TEMPLATE_FOLDER,
                   QStringLiteral("no folder of Tuner Property Files: %1").arg(failure.GetErrorReason()));
        return QString();
    }
}

void warnOfOutdatedFiles(const QDir& folder, const QStringList& files)
{
    const char* const context = "JEDVEPLUGIN::ResourceDescription";
    const QString text = QCoreApplication::translate(
        context, "There are Tuner Properties in folder %1 with an invalid version:\n%2\n"
                 "Try to export the Tuner Properties or check your configuration!");
    QMessageBox::warning(nullptr, QCoreApplication::translate(context, "Tuner Properties Version Check"),
                         text.arg(folder.absolutePath(), files.join(QLatin1Char('\n'))), QMessageBox::Ok,
                         QMessageBox::NoButton);
}

/// Reads one file. \return null, after a trace, if it does not open or is not valid
/// \param isOutdated  set if the file is not valid because of its version
std::shared_ptr<ResourceDescription> readResourceFile(const QDir& folder, const QString& fileName,
                                                      bool* isOutdated)
{
    traceError(TracePoints::READING_RESOURCE_FILE,
               QStringLiteral("Reading Tuner Property File: %1").arg(fileName));
    const std::optional<QString> text = readTextFile(folder.absoluteFilePath(fileName));
    if (!text) {
        traceError(TracePoints::CANNOT_OPEN_RESOURCE_FILE,
                   QStringLiteral("unable to open Tuner Property File: %1").arg(fileName));
        return nullptr;
    }
    auto description = std::make_shared<ResourceDescription>(*text);
    if (description->isValid())
        return description;
    *isOutdated = !isAcceptableVersion(description->getVersion());
    traceError(TracePoints::INVALID_RESOURCE_FILE,
               QStringLiteral("no valid Tuner Property File: %1").arg(fileName));
    return nullptr;
}

} // namespace

// The table stands in front of the mapper that is built from it: within one file this is the order in which
// the two come into being.
const QString ParameterSetMapper::s_globalMap[][3] = {
    {"HT720", "ActivityDetectionSettingsComponent", "ActivityDetectionSettings"},
    {"HT720", "ADemComponent", "ADemSettings"},
    {"HT720", "ClassifierSettingsComponent", "ClassifierSettings"},
    {"HT720", "DDemComponent", "DDemSettings"},
    {"HT720", "DFLocateComponent", "DF_Settings"},
    {"HT720", "DSCSettingsComponent", "DSCSettings"},
    {"HT720", "EDSettingsComponent", "EDSettings"},
    {"HT720", "FFTSettingsComponent", "FFTSettings"},
    {"HT720", "TunerSettingsComponent", "TunerSettings"},
    {"HT720", "TunerSettingsComponent", "AntennaSettings"},
    {"HT720", "JobAutomaticSettingsComponent", "JobAutomaticSettings"},
    {"HT720", "AutoRecordingComponent", "AutoRecordingSettings"},
    {"HT720", "SignalDescriptionsComponent", "SignalDescriptions"},
    {"HT720", "FHPJobSettingsComponent", "FHPJobSettings"},
    {"HT720", "CompressionSettingsComponent", "CompressionSettings"},
    {"TRV9KScanSettings", "ScanSettingsComponent", "ScanSettings"},
    {"TRV9KScanSettings", "ScanSettingsComponent", "DF_Settings"},
    {"TRV9KScanSettings", "ScanSettingsComponent", "FFTSettings"},
    {"TRV9KScanSettings", "ScanSettingsComponent", "TunerSettings"},
    {"DirectionFinder", "MultiSettingsComponent", "TunerSettings"},
    {"DirectionFinder", "MultiSettingsComponent", "ADemSettings"},
    {"DirectionFinder", "MultiSettingsComponent", "FFTSettings"},
    {"DirectionFinder", "MultiSettingsComponent", "DF_Settings"},
    {"DirectionFinder", "MultiSettingsComponent", "ScanSettings"},
};
const ParameterSetMapper ParameterSetMapper::s_mapper;

const QList<QString> ParameterSetMapper::getParameterSetNames(const QString& componentName)
{
    // The hash gives the values of a key from the newest to the oldest, the order that callers rely on.
    return s_mapper.m_setsByComponent.values(componentName.toLower());
}

const QString& ParameterSetMapper::getComponentName(const QString& resourceType,
                                                    const QString& parameterSetName)
{
    static const QString none;
    const auto components = s_mapper.m_componentsByResource.constFind(resourceType);
    if (components == s_mapper.m_componentsByResource.constEnd())
        return none;
    const auto component = components->constFind(parameterSetName);
    return component == components->constEnd() ? none : *component;
}

ParameterSetMapper::ParameterSetMapper()
{
    for (const auto& [resourceType, component, parameterSet] : s_globalMap) {
        m_setsByComponent.insert(component.toLower(), parameterSet);
        m_componentsByResource[resourceType].insert(parameterSet, component);
    }
}

ComponentDescriptor::ComponentDescriptor(const JobXml::Component& component)
    : type(component.Gettype())
    , name(component.Getname())
    , optional(component.Getoptional())
    , vtNodes(component.GetNode())
    , parameterSetNames(ParameterSetMapper::getParameterSetNames(name))
{
}

ComponentDescriptor::ComponentDescriptor(const ComponentDescriptor& other) = default;

ComponentDescriptor& ComponentDescriptor::operator=(const ComponentDescriptor& other) = default;

ComponentDescriptor::~ComponentDescriptor() = default;

QString ComponentDescriptor::getType() const
{
    return type;
}

QString ComponentDescriptor::getComponentName() const
{
    return name;
}

bool ComponentDescriptor::isOptional() const
{
    return optional;
}

const QList<QString>& ComponentDescriptor::getParameterSetNames() const
{
    return parameterSetNames;
}

JobXml::Node& ComponentDescriptor::getvtNode(const QString& id)
{
    const int position = positionOf(vtNodes, id);
    if (position >= 0)
        return vtNodes[position];
    JobXml::Node node;
    node.Setid(id);
    vtNodes.append(node);
    return vtNodes.last();
}

bool ComponentDescriptor::hasVtNode(const QString& id) const
{
    return positionOf(vtNodes, id) >= 0;
}

const QVector<JobXml::Node>& ComponentDescriptor::getVtNodes() const
{
    return vtNodes;
}

void ComponentDescriptor::appendNode(const JobXml::Node& node)
{
    vtNodes.append(node);
}

void ComponentDescriptor::createVTConfig(::Node* root) const
{
    if (root == nullptr)
        return;
    for (const JobXml::Node& node : vtNodes)
        createVTNode(root->AddChildNode(node.Getid()), node);
}

void ComponentDescriptor::createVTNode(::Node* target, const JobXml::Node& source) const
{
    // By the number of the choice. The two composed kinds are made by private operations, hence a local
    // table.
    using Maker = ValueBase* (*)(const ComponentDescriptor&, const JobXml::ValueItem&);
    static const Maker MAKERS[] = {
        [](const auto&, const auto& item) { return newValue<ValueBool>(item.GetValueBoolean()); },
        [](const auto&, const auto& item) { return newValue<ValueDouble>(item.GetValueFloat()); },
        [](const auto&, const auto& item) { return newValue<ValueInt>(item.GetValueInt()); },
        [](const auto&, const auto& item) { return newValue<ValueInt64>(item.GetValueInt64()); },
        [](const auto&, const auto& item) { return newNumeric<NumericDouble>(item.GetValueNumericFloat()); },
        [](const auto&, const auto& item) { return newNumeric<NumericInt>(item.GetValueNumericInt()); },
        [](const auto&, const auto& item) { return newNumeric<NumericInt64>(item.GetValueNumericInt64()); },
        [](const auto& self, const auto& item) {
            return self.createValueSelection(item.GetValueSelection());
        },
        [](const auto&, const auto& item) { return newValue<ValueString>(item.GetValueString()); },
        [](const auto& self, const auto& item) {
            return self.createValueStringList(item.GetValueStringList());
        },
    };
    if (target == nullptr)
        return;
    for (const JobXml::ValueItem& item : source.GetValueItem()) {
        const int choice = item.GetChoiceValueItem();
        if (choice < 0 || choice >= static_cast<int>(std::size(MAKERS))) {
            traceError(TracePoints::UNKNOWN_VALUE_ITEM,
                       QStringLiteral("%1 element not supported - maybe new TunerProperties.xsd version?")
                           .arg(JobXml::ValueItem::ChoiceValueItemToName(choice)));
            continue;
        }
        std::unique_ptr<ValueBase> value(MAKERS[choice](*this, item));
        if (target->AddChild(value.get(), QString()))
            static_cast<void>(value.release());
    }
}

ValueBase* ComponentDescriptor::createValueSelection(const JobXml::ValueSelection& selection) const
{
    auto value = std::make_unique<ValueSelection>();
    value->SetName(selection.Getid());
    for (const JobXml::SelectionItem& item : selection.GetSelectionItem())
        value->AddItem(item.Getname(), item.Getvalue(), truncated(item.Getvalue()));
    value->SelectIndex(selection.Getindex());
    return value.release();
}

ValueBase* ComponentDescriptor::createValueStringList(const JobXml::ValueStringList& list) const
{
    auto value = std::make_unique<StringList>();
    value->SetName(list.Getid());
    for (const JobXml::StringItem& item : list.GetStringItem())
        value->PushBack(item.Getvalue());
    return value.release();
}

ResourceDescription::ResourceDescription(const QString& xml)
{
    QString reason;
    try {
        valid = createFromStream(xml);
        return;
    } catch (const ZuException& failure) {
        reason = failure.GetErrorReason();
    } catch (const REPORTGENERATOR::RGException& failure) {
        reason = failure.GetMessage();
    } catch (const std::exception& failure) {
        reason = QString::fromUtf8(failure.what());
    }
    traceError(TracePoints::UNREADABLE_TUNER_PROPERTIES,
               QStringLiteral("unable to read Tuner Properties: %1").arg(reason));
    // A fault in the middle must not leave half a description behind.
    for (QString* text : {&name, &type, &baseResource, &parentBaseResource})
        *text = QString();
    components.clear();
    componentsByType.clear();
    componentsByName.clear();
    startupModes.clear();
    connectableResources.clear();
    quantity = 0;
}

ResourceDescription::ResourceDescription(const ResourceDescription& other) = default;

ResourceDescription& ResourceDescription::operator=(const ResourceDescription& other) = default;

ResourceDescription::~ResourceDescription() = default;

QList<std::shared_ptr<ResourceDescription>> ResourceDescription::readAllResourceFiles()
{
    static QList<std::shared_ptr<ResourceDescription>> s_descriptions;
    static bool s_isRead = false;
    if (s_isRead)
        return s_descriptions;
    s_isRead = true;
    const QString path = templateFolder();
    // Qt takes an empty path for the current folder.
    if (path.isEmpty())
        return s_descriptions;
    const QDir folder(path);
    QStringList outdatedFiles;
    for (const QString& fileName : folder.entryList(QDir::Files)) {
        bool isOutdated = false;
        if (auto description = readResourceFile(folder, fileName, &isOutdated))
            s_descriptions.append(description);
        if (isOutdated)
            outdatedFiles.append(fileName);
    }
    if (!outdatedFiles.isEmpty())
        warnOfOutdatedFiles(folder, outdatedFiles);
    return s_descriptions;
}

QString ResourceDescription::getName() const
{
    return name;
}

QString ResourceDescription::getType() const
{
    return type;
}

QString ResourceDescription::getBaseResource() const
{
    return baseResource;
}

const QStringList& ResourceDescription::getConnectableResources() const
{
    return connectableResources;
}

int ResourceDescription::getQuantity() const
{
    return quantity;
}

QString ResourceDescription::getParentBaseResource() const
{
    return parentBaseResource;
}

bool ResourceDescription::isValid() const
{
    return valid;
}

QString ResourceDescription::getVersion() const
{
    return version;
}

const QList<std::shared_ptr<ComponentDescriptor>>& ResourceDescription::getComponents() const
{
    return components;
}

const QStringList& ResourceDescription::getStartupModes() const
{
    return startupModes;
}

std::shared_ptr<ComponentDescriptor> ResourceDescription::getComponent(const QString& componentType) const
{
    return componentsByType.value(componentType);
}

std::shared_ptr<ComponentDescriptor>
ResourceDescription::getComponentByName(const QString& componentName) const
{
    return componentsByName.value(componentName);
}

void ResourceDescription::appendStartupMode(const QString& mode)
{
    startupModes.append(mode);
}

void ResourceDescription::setType(const QString& newType)
{
    type = newType;
}

bool ResourceDescription::createFromStream(const QString& xml)
{
    JobXml::TunerProperties file;
    file.SetValidate(false);
    if (!file.SetXmlString(xml, true))
        return false;
    version = file.GetInitialVersionLoaded();
    if (!isAcceptableVersion(version))
        return false;
    file.SetValidate(true);
    // What is inconsistent is the element's to report; the description takes the content as it is.
    file.Check();
    const JobXml::TunerProperties& content = file;
    name = content.Getname();
    type = JobXml::TunerProperties::typeToName(content.Gettype());
    baseResource = content.Getbaseresource();
    connectableResources.clear();
    if (content.IsconnectableResourcesSet())
        connectableResources = content.GetconnectableResources().split(QLatin1Char(','), Qt::SkipEmptyParts);
    quantity = content.Getquantity();
    if (content.IsStartupModesSet()) {
        for (const JobXml::StartupModes::StartupMode mode : content.GetStartupModes().GetStartupMode())
            startupModes.append(JobXml::StartupModes::StartupModeToName(mode));
    }
    parentBaseResource = content.IsparentBaseResourceSet() ? content.GetparentBaseResource() : QString();
    for (const JobXml::Component& component : content.GetComponent()) {
        const auto descriptor = std::make_shared<ComponentDescriptor>(component);
        components.append(descriptor);
        componentsByType.insert(descriptor->getType(), descriptor);
        componentsByName.insert(descriptor->getComponentName(), descriptor);
    }
    return true;
}

} // namespace JEDVEPLUGIN
