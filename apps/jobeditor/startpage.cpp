#include "startpage.h"

#include <jobxml/job.h>
#include <QCommandLinkButton>
#include <QDir>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

using JobXml::JobInformation;

namespace {
QVBoxLayout* addGroup(const QString& title, QHBoxLayout* row, QWidget* parent)
{
    auto* const group = new QGroupBox(title, parent);
    auto* const layout = new QVBoxLayout(group);
    row->addWidget(group, 1);
    return layout;
}
} // namespace

StartPage::StartPage(QWidget* parent)
    : QWidget(parent)
{
    auto* const title = new QLabel(tr("What is to be monitored?"), this);
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.6);
    title->setFont(font);
    auto* const row = new QHBoxLayout;
    QVBoxLayout* const types = addGroup(tr("New job"), row, this);
    const QStringList names = JobInformation::GetGUIJobTypes();
    for (int type = 0; type < names.size(); ++type) {
        auto* const button = new QCommandLinkButton(names[type], this);
        connect(button, &QAbstractButton::clicked, this,
                [this, type] { emit newJobWanted(static_cast<JEDVE::enJOB_TYPE>(type)); });
        types->addWidget(button);
    }
    types->addStretch();
    m_recent = addGroup(tr("Recent jobs"), row, this);
    m_examples = addGroup(tr("Example jobs"), row, this);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->addWidget(title);
    layout->addSpacing(12);
    layout->addLayout(row);
    layout->addStretch();
}

void StartPage::setRecentJobs(const QStringList& files)
{
    fill(m_recent, files, true);
}

void StartPage::setExampleJobs(const QStringList& files)
{
    fill(m_examples, files, false);
}

void StartPage::fill(QVBoxLayout* layout, const QStringList& files, bool withFolders)
{
    while (QLayoutItem* const item = layout->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    for (const QString& file : files) {
        const QFileInfo info(file);
        if (!info.isFile())
            continue;
        auto* const button = new QCommandLinkButton(info.completeBaseName(), this);
        if (withFolders)
            button->setDescription(QDir::toNativeSeparators(info.absolutePath()));
        button->setToolTip(QDir::toNativeSeparators(info.absoluteFilePath()));
        connect(button, &QAbstractButton::clicked, this, [this, file] { emit openWanted(file); });
        layout->addWidget(button);
    }
    if (layout->isEmpty())
        layout->addWidget(new QLabel(tr("None yet."), this));
    layout->addStretch();
}
