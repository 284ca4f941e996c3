#include "pagewindow.h"

#include <QBuffer>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QMessageBox>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTextBrowser>
#include <QTextDocument>
#include <QVBoxLayout>
#include <session/savefile.h>

namespace {
constexpr int DOTS_PER_INCH = 300;

QByteArray pdfOf(const QString& page, const QString& title)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(DOTS_PER_INCH);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setTitle(title);
    QTextDocument document;
    document.setHtml(page);
    document.print(&writer);
    return bytes;
}
} // namespace

PageWindow::PageWindow(const QString& title, const QString& page, const QString& fileName, QWidget* parent)
    : QDialog(parent)
    , m_page(page)
    , m_fileName(fileName)
{
    setWindowTitle(title);
    resize(760, 640);
    auto* const browser = new QTextBrowser(this);
    browser->setAccessibleName(title);
    // It is paper, in dark windows as well.
    QPalette paper = browser->palette();
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    browser->setPalette(paper);
    browser->setOpenExternalLinks(true);
    browser->setHtml(page);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    auto* const printButton = buttons->addButton(tr("&Print..."), QDialogButtonBox::ActionRole);
    auto* const saveButton = buttons->addButton(tr("&Save as..."), QDialogButtonBox::ActionRole);
    connect(printButton, &QPushButton::clicked, this, [this] { print(m_page, this); });
    connect(saveButton, &QPushButton::clicked, this, &PageWindow::askAndSave);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(browser);
    layout->addWidget(buttons);
    browser->setFocus();
}

bool PageWindow::save(const QString& path, QString* reason) const
{
    const bool isPdf = path.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive);
    return Session::saveFile(path, isPdf ? pdfOf(m_page, windowTitle()) : m_page.toUtf8(), reason);
}

void PageWindow::print(const QString& page, QWidget* window)
{
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    QTextDocument document;
    document.setHtml(page);
    document.print(&printer);
}

void PageWindow::askAndSave()
{
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Save the page"), m_fileName + QLatin1String(".html"),
                                     tr("Web pages (*.html);;PDF files (*.pdf)"));
    QString reason;
    if (!path.isEmpty() && !save(path, &reason))
        QMessageBox::critical(this, windowTitle(), tr("The page was not saved: %1").arg(reason));
}
