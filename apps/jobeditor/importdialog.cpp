#include "importdialog.h"

#include "importmodel.h"

#include <isubsetting.h>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>
#include <session/installation.h>

using Session::JobSession;
using Session::ListPreview;

ImportDialog::ImportDialog(JobSession* session, JobSession::Setting* target, QWidget* parent)
    : QDialog(parent)
    , m_session(session)
    , m_target(target)
    , m_model(new ImportModel(this))
    , m_file(new QLineEdit(this))
    , m_choose(new QPushButton(tr("&Choose..."), this))
    , m_format(new QComboBox(this))
    , m_table(new QTableView(this))
    , m_summary(new QLabel(this))
    , m_progress(new QProgressBar(this))
{
    setWindowTitle(tr("Import into %1").arg(target->getDisplayName()));
    m_file->setObjectName(QStringLiteral("importFile"));
    m_file->setReadOnly(true);
    m_format->setObjectName(QStringLiteral("importFormat"));
    for (const QString& format : Session::listFormats())
        m_format->addItem(Session::listFormatText(format), format);
    buildTable();
    m_summary->setObjectName(QStringLiteral("importSummary"));
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
    m_progress->setTextVisible(false);

    auto* const fileRow = new QHBoxLayout;
    fileRow->addWidget(m_file, 1);
    fileRow->addWidget(m_choose);
    auto* const form = new QFormLayout;
    auto* const fileLabel = new QLabel(tr("&List:"), this);
    fileLabel->setBuddy(m_file);
    form->addRow(fileLabel, fileRow);
    form->addRow(tr("&Format:"), m_format);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_import = buttons->addButton(tr("&Import"), QDialogButtonBox::AcceptRole);
    m_import->setObjectName(QStringLiteral("importButton"));
    m_cancel = buttons->button(QDialogButtonBox::Cancel);
    m_import->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &ImportDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ImportDialog::reject);
    connect(m_choose, &QPushButton::clicked, this, &ImportDialog::chooseFile);
    connect(m_format, QOverload<int>::of(&QComboBox::activated), this, &ImportDialog::read);
    connect(m_model, &ImportModel::choiceChanged, this, &ImportDialog::showSummary);

    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_summary);
    layout->addWidget(m_progress);
    layout->addWidget(buttons);
    resize(880, 460);
    setReading(false);
    showSummary();
}

void ImportDialog::buildTable()
{
    m_table->setObjectName(QStringLiteral("importTable"));
    m_table->setAccessibleName(tr("Entries of the list"));
    m_table->setModel(m_model);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setTabKeyNavigation(false);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->horizontalHeader()->setHighlightSections(false);
}

void ImportDialog::readFile(const QString& path)
{
    m_path = path;
    m_file->setText(QFileInfo(path).fileName());
    m_file->setToolTip(QDir::toNativeSeparators(path));
    m_format->setCurrentIndex(m_format->findData(Session::guessListFormat(path)));
    read();
}

void ImportDialog::chooseFile()
{
    const QString folder = m_path.isEmpty()
                               ? Session::installationFolder() + QStringLiteral("/FrequencyLists")
                               : QFileInfo(m_path).path();
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Import a list"), folder, tr("Lists of frequencies (*.xml *.csv *.json);;All files (*)"));
    if (!path.isEmpty())
        readFile(path);
}

void ImportDialog::read()
{
    if (m_isReading || m_path.isEmpty())
        return;
    m_isStopped = false;
    setReading(true);
    const ListPreview preview =
        Session::previewList(m_path, m_format->currentData().toString(),
                             [this](int done, int total) { return goOn(done, total); });
    setReading(false);
    m_model->setPreview(preview);
    // As wide as the first rows need; a long list is not looked through for that.
    m_table->resizeColumnsToContents();
    m_table->setFocus();
}

bool ImportDialog::goOn(int done, int total)
{
    m_progress->setRange(0, total);
    m_progress->setValue(done);
    QCoreApplication::processEvents();
    return !m_isStopped;
}

void ImportDialog::setReading(bool isReading)
{
    m_isReading = isReading;
    m_progress->setVisible(isReading);
    for (QWidget* widget :
         {static_cast<QWidget*>(m_choose), static_cast<QWidget*>(m_format), static_cast<QWidget*>(m_table)})
        widget->setEnabled(!isReading);
    m_cancel->setText(isReading ? tr("&Stop") : tr("Cancel"));
    if (isReading)
        m_import->setEnabled(false);
}

void ImportDialog::showSummary()
{
    const ListPreview& preview = m_model->preview();
    const int chosen = m_model->chosenEntries().size();
    m_import->setEnabled(chosen > 0);
    QStringList lines;
    if (m_path.isEmpty())
        lines.append(tr("Choose a list of frequencies."));
    else if (!preview.failure.isEmpty())
        lines.append(tr("The list is refused: %1").arg(preview.failure));
    else
        lines.append(tr("Entries to be imported: %1, refused: %2")
                         .arg(QString::number(chosen), QString::number(m_model->refusedCount())));
    if (!preview.leftOut.isEmpty())
        lines.append(tr("Left out, since there is no place for it: %1")
                         .arg(preview.leftOut.join(QLatin1String(", "))));
    m_summary->setText(lines.join(QLatin1Char('\n')));
}

void ImportDialog::accept()
{
    const QVector<int> entries = m_model->chosenEntries();
    QString error;
    if (m_isReading || entries.isEmpty())
        return;
    if (!Session::importList(m_session, m_target, m_model->preview().listOf(entries), &m_made, &error)) {
        QMessageBox::warning(this, windowTitle(), tr("Nothing was imported: %1").arg(error));
        return;
    }
    const int done = m_made.size() + 1;
    if (done < entries.size())
        QMessageBox::warning(this, windowTitle(),
                             tr("The plug-in took %1 of %2 entries.")
                                 .arg(QString::number(done), QString::number(entries.size())));
    QDialog::accept();
}

void ImportDialog::reject()
{
    m_isStopped = true;
    if (!m_isReading)
        QDialog::reject();
}
