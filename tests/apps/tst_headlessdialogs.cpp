#include <QMessageBox>
#include <QPushButton>
#include <session/headlessdialogs.h>
#include <support/testmain.h>

using Session::HeadlessDialogs;

class TstHeadlessDialogs : public QObject
{
    Q_OBJECT
private slots:
    void aWarningIsAnsweredWithItsOnlyButton();
    void aQuestionIsAnsweredWithItsEscapeButton();
    void theSetEscapeButtonCounts();
    void aBoxWithoutEscapeButtonIsClosed();
    void aBoxThatDoesNotBlockIsAnsweredToo();
    void boxesAreKeptInOrder();
    void withoutTheObjectNobodyAnswers();
};

void TstHeadlessDialogs::aWarningIsAnsweredWithItsOnlyButton()
{
    const HeadlessDialogs dialogs;
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(QMessageBox::warning(nullptr, "A title", "A text\nof two lines", QMessageBox::Ok),
             QMessageBox::Ok);
    QVERIFY(clock.elapsed() < 2000);
    QCOMPARE(dialogs.shown().size(), 1);
    QCOMPARE(dialogs.shown().at(0).title, QString("A title"));
    QCOMPARE(dialogs.shown().at(0).text, QString("A text\nof two lines"));
    QCOMPARE(dialogs.shown().at(0).answer, QString("OK"));
}

void TstHeadlessDialogs::aQuestionIsAnsweredWithItsEscapeButton()
{
    const HeadlessDialogs dialogs;
    const auto buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    QCOMPARE(QMessageBox::question(nullptr, "Title", "Delete?", buttons, QMessageBox::Yes),
             QMessageBox::Cancel);
    QCOMPARE(dialogs.shown().at(0).answer, QString("Cancel"));
}

void TstHeadlessDialogs::theSetEscapeButtonCounts()
{
    const HeadlessDialogs dialogs;
    QMessageBox box(QMessageBox::Question, "Title", "Text");
    box.addButton("&Keep", QMessageBox::AcceptRole);
    QPushButton* drop = box.addButton("&Drop", QMessageBox::AcceptRole);
    box.setEscapeButton(drop);
    box.exec();
    QCOMPARE(box.clickedButton(), drop);
    QCOMPARE(dialogs.shown().at(0).answer, QString("Drop"));
}

void TstHeadlessDialogs::aBoxWithoutEscapeButtonIsClosed()
{
    const HeadlessDialogs dialogs;
    QMessageBox box(QMessageBox::Question, "Title", "Text");
    box.addButton("One", QMessageBox::AcceptRole);
    box.addButton("Two", QMessageBox::AcceptRole);
    box.exec();
    QCOMPARE(dialogs.shown().at(0).answer, QString("closed"));
}

void TstHeadlessDialogs::aBoxThatDoesNotBlockIsAnsweredToo()
{
    const HeadlessDialogs dialogs;
    QMessageBox box(QMessageBox::Information, "Title", "Text", QMessageBox::Ok);
    box.open();
    QTRY_COMPARE(dialogs.shown().size(), 1);
    QVERIFY(box.isHidden());
}

void TstHeadlessDialogs::boxesAreKeptInOrder()
{
    const HeadlessDialogs dialogs;
    for (const char* title : {"first", "second", "third"})
        QMessageBox::information(nullptr, title, "Text");
    QStringList titles;
    for (const HeadlessDialogs::Shown& shown : dialogs.shown())
        titles.append(shown.title);
    QCOMPARE(titles, QStringList({"first", "second", "third"}));
}

void TstHeadlessDialogs::withoutTheObjectNobodyAnswers()
{
    {
        const HeadlessDialogs dialogs;
    }
    QMessageBox box(QMessageBox::Information, "Title", "Text", QMessageBox::Ok);
    box.open();
    QTest::qWait(50);
    QVERIFY(box.isVisible());
}

JED_TEST_MAIN(TstHeadlessDialogs)
#include "tst_headlessdialogs.moc"
