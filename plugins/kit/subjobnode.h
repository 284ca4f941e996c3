#pragma once

#include <kit/settingnode.h>
#include <kit/subjobrules.h>
#include <kit/subjobtree.h>

#include <jobxml/job.h>
#include <QHash>

namespace JEDVEPLUGIN {
class ResourceDescription;
}

namespace PluginKit {

class SubjobPage;

/// A sub-job: what the job file says about it beside its parameter sets (the header), and the values of all parameter
/// sets that its receiver has. The header is handled as one more parameter set, named "SubJob". GUI thread only.
class SubjobNode : public SettingNode
{
public:
    /// \param subjob    its parameter sets do not count
    /// \param resource  the receiver; null if the installation does not offer it: then there are no values, and what
    ///                  the job file says is kept as text
    SubjobNode(KitFactory& factory, const SettingType& type, const JobXml::Subjob& subjob,
               const std::shared_ptr<JEDVEPLUGIN::ResourceDescription>& resource);
    ~SubjobNode() override;

    QString getDisplayName() const override;
    /// False for an empty name. Blanks around it are dropped.
    bool setDisplayName(const QString& name) override;
    QStringList parameterSetNames() const override;
    QString parameterSetText(const QString& name) const override;
    /// A header that names another receiver is refused.
    bool setParameterSetText(const QString& name, const QString& xml) override;
    /// Without its receiver, a sub-job is grey.
    bool overwriteTreeColor() const override;
    const QColor& getTreeColor() const override;
    QList<JEDVEPLUGIN::Problem> problems() const override;
    SubjobNode* subjob() override;

    const JobXml::Subjob& header() const { return m_header; }
    /// \return false, with nothing changed, for a header that names another receiver or no name
    bool setHeader(const JobXml::Subjob& header);
    /// Null if the installation does not offer it.
    const std::shared_ptr<JEDVEPLUGIN::ResourceDescription>& resource() const { return m_resource; }
    /// Shows in the widget what is now, after something beside the header has changed.
    void showAgain();
    /// The start-up modes that can be chosen for the receiver in a job of the present type.
    QStringList startupModes() const;

    /// The values of a parameter set, null if the receiver does not have it. Owned by the sub-job.
    Node* values(const QString& parameterSet) const;
    /// The text of a set with the defaults that the receiver gives it; empty if it does not have it.
    QString defaultText(const QString& parameterSet) const { return m_defaults.value(parameterSet); }
    /// Null without rules.
    SubjobRules* rules() const { return m_rules.get(); }
    /// Whether every receiver of this kind has the set.
    bool isMandatory(const QString& parameterSet) const;

protected:
    QWidget* makeWidget() override;

private:
    QList<JEDVEPLUGIN::Problem> problemsOfDetectors() const;

    JobXml::Subjob m_header;
    std::shared_ptr<JEDVEPLUGIN::ResourceDescription> m_resource;
    SubjobTree m_tree;
    QHash<QString, QString> m_defaults;   // By parameter set.
    std::unique_ptr<SubjobRules> m_rules; // Null without rules, or without values.
    QPointer<SubjobPage> m_page;          // In the node's widget.
};

} // namespace PluginKit
