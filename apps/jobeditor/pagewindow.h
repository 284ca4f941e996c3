#pragma once

#include <QDialog>
#include <QString>

/// Shows a page of HTML as it would be printed, black on white; prints it, and writes it into a file as HTML or PDF. Used
/// for the summary of a job and for manuals.
class PageWindow : public QDialog
{
    Q_OBJECT
public:
    /// \param page      the HTML text, with all that it needs in it
    /// \param fileName  proposed for saving, without folder and extension
    PageWindow(const QString& title, const QString& page, const QString& fileName, QWidget* parent = nullptr);

    /// Writes the page in one piece: as PDF if the name ends so, else as the HTML text itself.
    /// \param reason  receives why it could not be written; may not be null
    bool save(const QString& path, QString* reason) const;

    /// Prints a page after asking where. \param window  parent of the dialog, may be null
    static void print(const QString& page, QWidget* window);

private:
    void askAndSave();

    QString m_page;
    QString m_fileName;
};
