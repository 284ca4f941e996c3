#include "headlessdialogs.h"

#include <cstdio>
#include <QAbstractButton>
#include <QCoreApplication>
#include <QEvent>
#include <QMessageBox>
#include <QPointer>

namespace Session {

HeadlessDialogs::HeadlessDialogs(QObject* parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

HeadlessDialogs::~HeadlessDialogs() = default;

bool HeadlessDialogs::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show) {
        // The box settles which button stands for escape while it handles this event, so answer afterwards.
        if (auto* box = qobject_cast<QMessageBox*>(watched))
            QMetaObject::invokeMethod(
                this, [this, box = QPointer<QMessageBox>(box)] { answer(box); }, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void HeadlessDialogs::answer(QMessageBox* box)
{
    if (!box || box->isHidden())
        return;
    Shown shown{box->windowTitle(), box->text(), tr("closed")};
    // close() is a no-op for a box without an escape button.
    if (box->close() && box->clickedButton())
        shown.answer = box->clickedButton()->text().remove(QLatin1Char('&'));
    else
        box->reject();
    m_shown.append(shown);
    const QString message =
        tr("message box: %1\n%2\nanswered: %3\n").arg(shown.title, shown.text, shown.answer);
    std::fputs(message.toUtf8().constData(), stderr);
}

} // namespace Session
