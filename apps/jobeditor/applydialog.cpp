#include "applydialog.h"

#include <isubsetting.h>
#include <jobxml/settings.h>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <session/applysettings.h>

using JEDVEPLUGIN::ISubSetting;

namespace {
QStringList labelsOf(const QStringList& sets)
{
    QStringList result;
    for (const QString& set : sets)
        result.append(JobXml::findParameterSet(set)->label());
    return result;
}

// The names from the sub-job down to the setting.
QStringList placesOf(const QVector<ISubSetting*>& settings)
{
    QStringList result;
    for (ISubSetting* setting : settings) {
        QString place = setting->getDisplayName();
        while ((setting = setting->parent()))
            place = ApplyDialog::tr("%1 / %2").arg(setting->getDisplayName(), place);
        result.append(place);
    }
    return result;
}

QVector<int> checkedRows(const QListWidget* list)
{
    QVector<int> rows;
    for (int row = 0; row < list->count(); ++row) {
        if (list->item(row)->checkState() == Qt::Checked)
            rows.append(row);
    }
    return rows;
}
} // namespace

ApplyDialog::ApplyDialog(const Session::JobSession& session, ISubSetting* source, QWidget* parent)
    : QDialog(parent)
    , m_sets(Session::applicableSets(*source))
    , m_targets(Session::similarSettings(session, source))
{
    setWindowTitle(tr("Apply settings"));
    setLayout(new QVBoxLayout);
    m_setList =
        addList(tr("&Settings of \"%1\"").arg(source->getDisplayName()), "sets", labelsOf(m_sets), true);
    m_targetList = addList(tr("Apply &to"), "targets", placesOf(m_targets), false);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_apply = buttons->addButton(tr("&Apply"), QDialogButtonBox::AcceptRole);
    QPushButton* const all = buttons->addButton(tr("To a&ll"), QDialogButtonBox::ActionRole);
    m_apply->setDefault(true);
    m_apply->setEnabled(false);
    all->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(all, &QAbstractButton::clicked, this, &ApplyDialog::checkAll);
    layout()->addWidget(buttons);
    resize(420, 440);
    m_targetList->setFocus();
}

QStringList ApplyDialog::sets() const
{
    QStringList result;
    for (const int row : checkedRows(m_setList))
        result.append(m_sets.at(row));
    return result;
}

QVector<ISubSetting*> ApplyDialog::targets() const
{
    QVector<ISubSetting*> result;
    for (const int row : checkedRows(m_targetList))
        result.append(m_targets.at(row));
    return result;
}

QListWidget* ApplyDialog::addList(const QString& title, const char* name, const QStringList& entries,
                                  bool isChecked)
{
    auto* const label = new QLabel(title, this);
    auto* const list = new QListWidget(this);
    list->setObjectName(QLatin1String(name));
    list->setAccessibleName(QString(title).remove(QLatin1Char('&')));
    label->setBuddy(list);
    for (const QString& entry : entries) {
        auto* const item = new QListWidgetItem(entry, list);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(isChecked ? Qt::Checked : Qt::Unchecked);
    }
    list->setCurrentRow(0);
    connect(list, &QListWidget::itemChanged, this,
            [this] { m_apply->setEnabled(!sets().isEmpty() && !targets().isEmpty()); });
    layout()->addWidget(label);
    layout()->addWidget(list);
    return list;
}

void ApplyDialog::checkAll()
{
    for (int row = 0; row < m_targetList->count(); ++row)
        m_targetList->item(row)->setCheckState(Qt::Checked);
}
