#pragma once

#include <QDialog>
#include <session/jobsession.h>

class QListWidget;

/// Asks which parameter sets of a setting go to which other settings of its type.
class ApplyDialog : public QDialog
{
    Q_OBJECT
public:
    ApplyDialog(const Session::JobSession& session, JEDVEPLUGIN::ISubSetting* source, QWidget* parent);

    QStringList sets() const;
    QVector<JEDVEPLUGIN::ISubSetting*> targets() const;

private:
    QListWidget* addList(const QString& title, const char* name, const QStringList& entries, bool isChecked);
    void checkAll();

    const QStringList m_sets;
    const QVector<JEDVEPLUGIN::ISubSetting*> m_targets;
    QListWidget* m_setList;
    QListWidget* m_targetList;
    class QPushButton* m_apply = nullptr;
};
