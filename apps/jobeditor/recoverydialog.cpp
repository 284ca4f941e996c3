#include "recoverydialog.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using Session::LeftJob;

RecoveryDialog::RecoveryDialog(const QList<LeftJob>& jobs, QWidget* parent)
    : QDialog(parent)
    , m_jobs(jobs)
    , m_list(new QTreeWidget(this))
{
    setWindowTitle(tr("Recover jobs"));
    auto* const text = new QLabel(tr("The job editor ended before these jobs were saved. A recovered job is "
                                     "opened with its changes; its file stays as it is until you save."),
                                  this);
    text->setWordWrap(true);
    m_list->setObjectName(QStringLiteral("leftJobs"));
    m_list->setAccessibleName(tr("Jobs that were not saved"));
    m_list->setHeaderLabels({tr("Job"), tr("Last change (UTC)"), tr("File")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);

    auto* const buttons = new QDialogButtonBox(this);
    QPushButton* const recover = buttons->addButton(tr("&Recover"), QDialogButtonBox::AcceptRole);
    QPushButton* const discard = buttons->addButton(tr("&Discard..."), QDialogButtonBox::ActionRole);
    buttons->addButton(tr("&Later"), QDialogButtonBox::RejectRole);
    recover->setDefault(true);
    discard->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(discard, &QAbstractButton::clicked, this, &RecoveryDialog::discardCurrent);
    connect(m_list, &QTreeWidget::itemActivated, this, &QDialog::accept);

    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(m_list, 1);
    layout->addWidget(buttons);
    resize(640, 300);
    fill();
}

const LeftJob& RecoveryDialog::chosen() const
{
    return m_jobs.at(m_list->indexOfTopLevelItem(m_list->currentItem()));
}

void RecoveryDialog::fill()
{
    m_list->clear();
    for (const LeftJob& job : qAsConst(m_jobs)) {
        const QString file = job.path.isEmpty() ? tr("never saved") : QDir::toNativeSeparators(job.path);
        auto* const item = new QTreeWidgetItem(
            m_list, {job.name, job.written.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")), file});
        item->setToolTip(2, file);
    }
    m_list->setCurrentItem(m_list->topLevelItem(0));
    for (int column = 0; column < 2; ++column)
        m_list->resizeColumnToContents(column);
}

void RecoveryDialog::discardCurrent()
{
    const auto answer = QMessageBox::question(
        this, tr("Discard"), tr("Give the changes of \"%1\" up for good?").arg(chosen().name),
        QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    if (answer != QMessageBox::Yes)
        return;
    Session::Recovery::discard(m_jobs.takeAt(m_list->indexOfTopLevelItem(m_list->currentItem())));
    if (m_jobs.isEmpty())
        return reject();
    fill();
}
