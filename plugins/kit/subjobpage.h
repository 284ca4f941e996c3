#pragma once

#include <subjobwidget.h>

namespace JEDVEPLUGIN {
class SelectableResourceModel;
}
namespace JobXml {
class Subjob;
}

namespace PluginKit {

class KitFactory;
class SubjobNode;

/// Shows and edits what a job file says about a sub-job beside its parameter sets.
class SubjobPage : public JEDVEPLUGIN::SubJobWidget
{
public:
    /// \param node  must outlive the page
    SubjobPage(const KitFactory& factory, SubjobNode& node);

    /// Shows what the sub-job is now.
    void load();

private:
    void connectFields();
    void loadDetector(const JobXml::Subjob& header);
    void loadAutonomousReceivers(const JobXml::Subjob& header);
    void showDetectorFields();
    void store();
    void storeAutonomousReceivers(JobXml::Subjob* header) const;
    DetectorOptions detectorOptions() const;

    const KitFactory& m_factory;
    SubjobNode& m_node;
    JEDVEPLUGIN::SelectableResourceModel* m_autonomous; // Receivers that the detector can use. Qt owns it.
    bool m_isBusy = false;                              // Loading or storing.
};

} // namespace PluginKit
