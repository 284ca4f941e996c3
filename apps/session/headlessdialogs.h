#pragma once

#include <QList>
#include <QObject>
#include <QString>

class QMessageBox;

namespace Session {

/// Stands in for the person in front of the screen: while it lives, each message box of the process is
/// written to the error output (title, text, answer) and answered with its escape button, so that a tool or a
/// batch run never waits. One object per process, made after the application object and destroyed before it.
/// GUI thread only.
class HeadlessDialogs : public QObject
{
    Q_OBJECT
public:
    /// A message box that was shown and answered.
    struct Shown
    {
        QString title;
        QString text;
        QString answer; // The button's text; "closed" if the box has no button that stands for escape.
    };

    explicit HeadlessDialogs(QObject* parent = nullptr);
    ~HeadlessDialogs() override;

    /// What has been shown so far, in order.
    const QList<Shown>& shown() const { return m_shown; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void answer(QMessageBox* box);

    QList<Shown> m_shown;
};

} // namespace Session
