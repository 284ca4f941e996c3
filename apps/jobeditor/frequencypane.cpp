#include "frequencypane.h"

#include "frequencystrip.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>
#include <resourcedescription.h>
#include <session/fieldplaces.h>
#include <session/frequencymodel.h>
#include <session/jobsession.h>

using Session::FrequencyModel;

FrequencyPane::FrequencyPane(Session::JobSession* session, QWidget* parent)
    : QWidget(parent)
    , m_session(session)
    , m_model(new FrequencyModel(session, JEDVEPLUGIN::ResourceDescription::readAllResourceFiles(), this))
{
    auto* const strip = new FrequencyStrip(m_model, this);
    auto* const scale = new QCheckBox(tr("&Logarithmic"), this);
    scale->setChecked(strip->isLogarithmic());
    scale->setToolTip(tr("Equal factors instead of equal distances along the axis"));
    connect(scale, &QCheckBox::toggled, strip, &FrequencyStrip::setLogarithmic);
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(scale);
    buttons->addStretch();
    const auto add = [this, buttons, strip](const QString& text, const QString& help,
                                            void (FrequencyStrip::*action)()) {
        auto* const button = new QPushButton(text, this);
        button->setToolTip(help);
        connect(button, &QPushButton::clicked, strip, action);
        buttons->addWidget(button);
    };
    add(tr("Zoom &in"), tr("Show less of the axis, larger (+)"), &FrequencyStrip::zoomIn);
    add(tr("Zoom &out"), tr("Show more of the axis (-)"), &FrequencyStrip::zoomOut);
    add(tr("Show &all"), tr("Show the whole axis (0)"), &FrequencyStrip::showAll);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(buttons);
    layout->addWidget(strip);
    connect(strip, &QAbstractItemView::clicked, this, &FrequencyPane::choose);
    connect(strip, &QAbstractItemView::activated, this, &FrequencyPane::choose);
}

void FrequencyPane::choose(const QModelIndex& index)
{
    if (!index.isValid())
        return;
    const FrequencyModel::Item& item = m_model->item(index.row());
    const QString set = item.range.parameterSet;
    JEDVEPLUGIN::ISubSetting* const carrier =
        set.isEmpty() ? nullptr : Session::findCarrier(m_session->settingAt({item.subjob}), set);
    if (carrier)
        emit fieldChosen(carrier, set, item.range.field);
    else
        emit subjobChosen(item.subjob);
}
