#include <kit/kitfactory.h>
#include <kit/subjobheader.h>
#include <kit/subjobnode.h>
#include <kit/subjobpage.h>

#include <jedcommonhelper.h>
#include <jobxml/parametersettext.h>
#include <QColor>
#include <QCoreApplication>
#include <QTabWidget>
#include <resourcedescription.h>
#include <values/node.h>

using JEDVEPLUGIN::JEDCommonHelper;
using JEDVEPLUGIN::Problem;

namespace {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(PluginKit::SubjobNode)
};

QString receiverOf(const JobXml::Subjob& subjob)
{
    const JobXml::ResourceDescription& resource = subjob.GetResourceDescription();
    return JobXml::ResourceDescription::TypeToName(resource.GetType()) + QLatin1Char('/') +
           resource.GetBaseResource();
}

Problem problemOfHeader(Problem::Severity severity, const char* field, const QString& text)
{
    return {severity, QLatin1String(PluginKit::SUB_JOB), QLatin1String(field), text};
}
} // namespace

namespace PluginKit {

SubjobNode::SubjobNode(KitFactory& factory, const SettingType& type, const JobXml::Subjob& subjob,
                       const std::shared_ptr<JEDVEPLUGIN::ResourceDescription>& resource)
    : SettingNode(factory, type, nullptr)
    , m_header(headerOf(subjob))
    , m_resource(resource)
    , m_tree(factory.valueTreeNode())
{
    if (!resource)
        return;
    m_tree.build(*resource);
    for (const Node* set : m_tree.sets())
        m_defaults.insert(set->GetId(), JobXml::ParameterSetText::toText(*set));
    if (!factory.ruleScript().isEmpty())
        m_rules = std::make_unique<SubjobRules>(factory.ruleScript(), *m_tree.root());
}

SubjobNode::~SubjobNode()
{
    dismantle();
}

QString SubjobNode::getDisplayName() const
{
    return m_header.GetName();
}

bool SubjobNode::setDisplayName(const QString& name)
{
    JobXml::Subjob renamed = m_header;
    renamed.SetName(name.trimmed());
    return setHeader(renamed);
}

QStringList SubjobNode::parameterSetNames() const
{
    return QStringList(QLatin1String(SUB_JOB)) + SettingNode::parameterSetNames();
}

QString SubjobNode::parameterSetText(const QString& name) const
{
    return name == QLatin1String(SUB_JOB) ? m_header.GetXmlString(false)
                                          : SettingNode::parameterSetText(name);
}

bool SubjobNode::setParameterSetText(const QString& name, const QString& xml)
{
    if (name != QLatin1String(SUB_JOB))
        return SettingNode::setParameterSetText(name, xml);
    JobXml::Subjob header;
    return header.SetXmlString(xml, false) && setHeader(header);
}

bool SubjobNode::overwriteTreeColor() const
{
    return !m_resource;
}

const QColor& SubjobNode::getTreeColor() const
{
    static const QColor gray(Qt::gray);
    return m_resource ? SettingNode::getTreeColor() : gray;
}

QList<Problem> SubjobNode::problems() const
{
    QList<Problem> result;
    if (!m_resource)
        result.append(problemOfHeader(
            Problem::SEVERITY_ERROR, "ResourceDescription.BaseResource",
            Texts::tr("The installation does not offer the receiver %1").arg(receiverOf(m_header))));
    const QString mode = JobXml::Subjob::StartupModeToName(m_header.GetStartupMode());
    if (m_resource && !startupModes().contains(mode))
        result.append(
            problemOfHeader(Problem::SEVERITY_WARNING, "StartupMode",
                            Texts::tr("The receiver does not offer the start-up mode \"%1\" for this "
                                      "type of job")
                                .arg(JEDCommonHelper::startupModeToGUI(mode))));
    return result + problemsOfDetectors() + SettingNode::problems();
}

SubjobNode* SubjobNode::subjob()
{
    return this;
}

bool SubjobNode::setHeader(const JobXml::Subjob& header)
{
    const JobXml::Subjob wanted = headerOf(header);
    if (wanted.GetName().isEmpty() || receiverOf(wanted) != receiverOf(m_header))
        return false;
    if (wanted.GetXmlString(false) == m_header.GetXmlString(false))
        return true;
    m_header = wanted;
    showAgain();
    tellChange();
    return true;
}

void SubjobNode::showAgain()
{
    if (m_page)
        m_page->load();
}

QStringList SubjobNode::startupModes() const
{
    return PluginKit::startupModes(m_resource ? m_resource->getStartupModes() : QStringList(),
                                   m_factory.getCurrentJobType());
}

Node* SubjobNode::values(const QString& parameterSet) const
{
    return m_tree.set(parameterSet);
}

bool SubjobNode::isMandatory(const QString& parameterSet) const
{
    return m_tree.setsInUse({}).contains(values(parameterSet));
}

QWidget* SubjobNode::makeWidget()
{
    auto tabs = std::make_unique<QTabWidget>();
    m_page = new SubjobPage(m_factory, *this);
    tabs->addTab(m_page, Texts::tr("Sub-job"));
    addEditors(tabs.get());
    return tabs.release();
}

QList<Problem> SubjobNode::problemsOfDetectors() const
{
    QList<Problem> result;
    for (const JobXml::Detector& detector : m_header.GetDetector()) {
        if (!JEDCommonHelper::supportsDetector(m_factory.getCurrentJobType()))
            result.append(problemOfHeader(Problem::SEVERITY_WARNING, "Detector",
                                          Texts::tr("Jobs of this type have no detectors")));
        else if (!JEDCommonHelper::supportsDetectorType(m_header.GetResourceDescription().GetType(),
                                                        detector.GetType()))
            result.append(problemOfHeader(Problem::SEVERITY_WARNING, "Detector",
                                          Texts::tr("The receiver does not offer the detector \"%1\"")
                                              .arg(JEDCommonHelper::detectorTypeToGUI(
                                                  JobXml::Detector::TypeToName(detector.GetType())))));
    }
    return result;
}

} // namespace PluginKit
