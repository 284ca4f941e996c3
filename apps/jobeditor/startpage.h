#pragma once

#include <enjobtype.h>
#include <QWidget>

class QVBoxLayout;

/// What is shown before there is a job: the types of jobs, recent jobs and the installation's example jobs.
class StartPage : public QWidget
{
    Q_OBJECT
public:
    explicit StartPage(QWidget* parent = nullptr);

    /// \param files  paths, newest first; those that are gone are left out
    void setRecentJobs(const QStringList& files);
    void setExampleJobs(const QStringList& files);

signals:
    void newJobWanted(JEDVE::enJOB_TYPE type);
    void openWanted(const QString& file);

private:
    void fill(QVBoxLayout* layout, const QStringList& files, bool withFolders);

    QVBoxLayout* m_recent;
    QVBoxLayout* m_examples;
};
