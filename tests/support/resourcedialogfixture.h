#pragma once

#include "resourceselectiondialog.h"

#include <support/resourcesamples.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QSpinBox>
#include <QStringList>

#include <memory>

namespace JedTest {

// The kinds of resources, in the order of the job file's numbers.
const QStringList RESOURCE_KINDS = {"HT720", "TRV9KScanSettings", "DirectionFinder", "MeasurementReceiver",
                                    "SignalRecorder"};

/// A description without components, its start-up modes and connectable resources separated by blanks.
inline DescriptionPtr receiver(const QString& type, const QString& base,
                               const QString& startupModes = QString(),
                               const QString& connectable = QString())
{
    auto description = std::make_shared<JEDVEPLUGIN::ResourceDescription>(
        QStringLiteral("<TunerProperties version='1.1' name='Name of %1' type='HT720' baseresource='%1' "
                       "quantity='1' connectableResources='%2'>"
                       "<Component type='Tuner' name='ADemComponent' optional='false'/></TunerProperties>")
            .arg(base, QString(connectable).replace(' ', ',')));
    description->setType(type);
    for (const QString& mode : startupModes.split(' ', Qt::SkipEmptyParts))
        description->appendStartupMode(mode);
    return description;
}

/// A dialog for the selection of a resource and its fields, which are named without "ResourceSelection_".
class ResourceDialogFixture
{
public:
    struct Offer
    {
        bool detector = true;
        bool preset = false;
        bool preClassifier = false;
        QStringList startupModes;
    };

    void open(const QList<DescriptionPtr>& resources, const Offer& offer)
    {
        m_dialog = std::make_unique<JEDVEPLUGIN::ResourceSelectionDialog>(
            resources, offer.detector, offer.preset, offer.preClassifier, offer.startupModes, nullptr);
    }
    void close() { m_dialog.reset(); }

    template <typename Widget>
    Widget* find(const QString& name) const
    {
        return m_dialog->findChild<Widget*>("ResourceSelection_" + name);
    }
    QComboBox* combo(const QString& name) const { return find<QComboBox>(name); }
    QCheckBox* check(const QString& name) const { return find<QCheckBox>(name); }
    QSpinBox* spin(const QString& name) const { return find<QSpinBox>(name); }
    QListWidget* modes() const { return find<QListWidget>("StartupModes"); }

    /// The entries of a box, the current one in brackets, "disabled" behind them if it is.
    QString entries(const QString& name) const
    {
        const QComboBox* box = combo(name);
        QStringList texts;
        for (int index = 0; index < box->count(); ++index)
            texts << QString(index == box->currentIndex() ? "[%1]" : "%1").arg(box->itemText(index));
        return texts.join(", ") + (box->isEnabled() ? "" : " disabled");
    }
    /// The entries of the list of start-up modes in the same way.
    QString listed() const
    {
        QStringList texts;
        for (int row = 0; row < modes()->count(); ++row)
            texts << QString(row == modes()->currentRow() ? "[%1]" : "%1").arg(modes()->item(row)->text());
        return texts.join(", ");
    }

    /// Names of the fields that are not hidden; "name's label" and "name's field" where only one of both is.
    QString visibleFields() const
    {
        QStringList names;
        for (const QLabel* label : m_dialog->findChildren<QLabel*>()) {
            const QWidget* field = label->buddy();
            if (!field)
                continue;
            const QString name = field->objectName().section('_', 1);
            if (!label->isHidden() && !field->isHidden())
                names << name;
            else if (label->isHidden() != field->isHidden())
                names << name + (field->isHidden() ? "'s label" : "'s field");
        }
        names.sort();
        return names.join(' ');
    }
    bool isVisible(const QString& name) const { return visibleFields().split(' ').contains(name); }

    /// All results of the dialog in one text.
    QString results() const
    {
        const auto flag = [](const char* name, bool isSet) {
            return isSet ? QString(" ") + name : QString();
        };
        const DescriptionPtr description = m_dialog->getSelectedDescription();
        return QString("%1|%2|%3|%4|%5 DSC|%6%|%7|%8|")
                   .arg(description ? description->getBaseResource() : "none",
                        m_dialog->getSelectedStartupMode(), m_dialog->getSelectedRecordLocation(),
                        m_dialog->getDetectorType(), QString::number(m_dialog->getDSCChannels()),
                        QString::number(m_dialog->getMinCoverage()), m_dialog->getDetectorRecordLocation(),
                        m_dialog->getDetectorBaseResource()) +
               (flag("detector", m_dialog->isDetectorSelected()) +
                flag("production", m_dialog->isProductionSet()) +
                flag("auto", m_dialog->isAutoSeparationSet()) +
                flag("filter", m_dialog->isFilterSeparationSet()) +
                flag("online", m_dialog->isOnlineRecombinationSet()) +
                flag("recording", m_dialog->isAutoRecordingSet()) +
                flag("preclassifier", m_dialog->isPreClassifierSelected()))
                   .trimmed();
    }

    std::unique_ptr<JEDVEPLUGIN::ResourceSelectionDialog> m_dialog;
};

} // namespace JedTest
