#pragma once

#include <QDialog>
#include <session/jobsession.h>

class ImportModel;
class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QTableView;

/// Takes a list of frequencies over into a sub-job: shows what each of its entries becomes before anything is done.
class ImportDialog : public QDialog
{
    Q_OBJECT
public:
    /// \param session  not owned, outlives the dialog
    /// \param target   takes the list; a setting of the session
    ImportDialog(Session::JobSession* session, Session::JobSession::Setting* target, QWidget* parent);

    /// Reads a list and shows it; its format is guessed.
    void readFile(const QString& path);
    /// The settings that were made beside the target; empty unless the dialog was accepted.
    const QList<Session::JobSession::Setting*>& made() const { return m_made; }

    void accept() override;
    void reject() override;

private:
    void buildTable();
    void chooseFile();
    void read();
    bool goOn(int done, int total);
    void setReading(bool isReading);
    void showSummary();

    Session::JobSession* m_session;         // Not owned.
    Session::JobSession::Setting* m_target; // The session's.
    ImportModel* m_model;
    QString m_path; // Of the list; empty until there is one.
    QLineEdit* m_file;
    QPushButton* m_choose;
    QComboBox* m_format;
    QTableView* m_table;
    QLabel* m_summary;
    QProgressBar* m_progress;
    QPushButton* m_import;
    QPushButton* m_cancel;
    QList<Session::JobSession::Setting*> m_made;
    bool m_isReading = false;
    bool m_isStopped = false;
};
