#include "checkedheaderview.h"

#include <support/testmain.h>

#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QProxyStyle>
#include <QStandardItemModel>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <QTableView>

using JEDVEPLUGIN::CheckedHeaderView;

namespace {

struct DrawnBox
{
    QRect rect;
    QStyle::State state;
    QPen pen;
    int elementsBefore;
};

/// Remembers the check boxes that are drawn.
class RecordingStyle : public QProxyStyle
{
public:
    RecordingStyle()
        : QProxyStyle(QStyleFactory::create("Fusion"))
    {
    }
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
    {
        if (element == CE_CheckBox)
            m_boxes << DrawnBox{option->rect, option->state, painter->pen(), m_otherElements};
        else
            ++m_otherElements;
        if (element == CE_Header)
            painter->setPen(Qt::red);
        QProxyStyle::drawControl(element, option, painter, widget);
    }

    mutable QList<DrawnBox> m_boxes;
    mutable int m_otherElements = 0;
};

/// Opens what a header view keeps to itself.
class OpenHeader : public CheckedHeaderView
{
public:
    using CheckedHeaderView::CheckedHeaderView;
    using CheckedHeaderView::mousePressEvent;
    using CheckedHeaderView::paintSection;
    using CheckedHeaderView::sectionSizeFromContents;
};

QString states(const QAbstractItemModel& model, Qt::Orientation orientation, int count)
{
    QStringList texts;
    for (int section = 0; section < count; ++section) {
        const QVariant state = model.headerData(section, orientation, Qt::CheckStateRole);
        texts << (state.isValid() ? state.toString() : QString("-"));
    }
    return texts.join(' ');
}

/// Only the sections that it has, and none of them if told so.
class HeaderModel : public QStandardItemModel
{
public:
    using QStandardItemModel::QStandardItemModel;
    bool setHeaderData(int section, Qt::Orientation orientation, const QVariant& value, int role) override
    {
        m_log << QString("%1 %2 %3:%4 %5")
                     .arg(section)
                     .arg(orientation == Qt::Vertical ? "vertical" : "horizontal", value.typeName(),
                          value.toString())
                     .arg(role);
        return !m_refuse && QStandardItemModel::setHeaderData(section, orientation, value, role);
    }

    QStringList m_log;
    bool m_refuse = false;
};

} // namespace

class TstCheckedHeaderView : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void classIsKnownToQt();
    void orientationAndParentAreTaken();
    void pressToggles_data();
    void pressToggles();
    void horizontalSectionsToggle();
    void stateOfSection_data();
    void stateOfSection();
    void movedSectionTogglesItself();
    void pressBesideTheSectionsDoesNothing();
    void disabledHeaderKeepsItsState();
    void refusedToggleChangesNothing();
    void withoutModelNothingHappens();
    void pressNeitherSelectsNorSorts();
    void releaseClicksNothing();
    void everySectionHasItsBox();
    void boxIsDrawnOverTheSection();
    void boxIsCentred_data();
    void boxIsCentred();
    void disabledHeaderDrawsADisabledBox();
    void sizeIsThatOfACheckBox();

private:
    void press(int section, Qt::MouseButton button = Qt::LeftButton);

    std::unique_ptr<HeaderModel> m_model;
    std::unique_ptr<QTableView> m_view;
    std::unique_ptr<RecordingStyle> m_style;
    OpenHeader* m_header = nullptr; // Owned by the view.
};

void TstCheckedHeaderView::init()
{
    m_model = std::make_unique<HeaderModel>(4, 2);
    m_style = std::make_unique<RecordingStyle>();
    m_view = std::make_unique<QTableView>();
    m_header = new OpenHeader(Qt::Vertical, m_view.get());
    m_header->setStyle(m_style.get());
    m_view->setVerticalHeader(m_header);
    m_view->setModel(m_model.get());
    m_view->resize(300, 300);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
}

void TstCheckedHeaderView::cleanup()
{
    m_view.reset();
    m_model.reset();
    m_style.reset();
}

void TstCheckedHeaderView::press(int section, Qt::MouseButton button)
{
    const QPoint pos(3, m_header->sectionViewportPosition(section) + 3);
    QTest::mousePress(m_header->viewport(), button, Qt::NoModifier, pos);
    QTest::mouseRelease(m_header->viewport(), button, Qt::NoModifier, pos);
}

void TstCheckedHeaderView::classIsKnownToQt()
{
    const QMetaObject& meta = CheckedHeaderView::staticMetaObject;
    QCOMPARE(meta.className(), "JEDVEPLUGIN::CheckedHeaderView");
    QCOMPARE(meta.superClass(), &QHeaderView::staticMetaObject);
    QCOMPARE(meta.methodCount(), QHeaderView::staticMetaObject.methodCount());
}

void TstCheckedHeaderView::orientationAndParentAreTaken()
{
    QWidget parent;
    CheckedHeaderView header(Qt::Horizontal, &parent);
    QCOMPARE(header.orientation(), Qt::Horizontal);
    QCOMPARE(header.parentWidget(), &parent);
    CheckedHeaderView alone(Qt::Vertical, nullptr);
    QCOMPARE(alone.orientation(), Qt::Vertical);
    QVERIFY(!alone.parentWidget());
}

void TstCheckedHeaderView::pressToggles_data()
{
    QTest::addColumn<int>("button");
    QTest::newRow("left") << int(Qt::LeftButton);
    QTest::newRow("right") << int(Qt::RightButton);
    QTest::newRow("middle") << int(Qt::MiddleButton);
}

void TstCheckedHeaderView::pressToggles()
{
    QFETCH(int, button);
    QCOMPARE(states(*m_model, Qt::Vertical, 4), QString("- - - -"));
    press(1, Qt::MouseButton(button));
    QCOMPARE(states(*m_model, Qt::Vertical, 4), QString("- 2 - -"));
    press(3, Qt::MouseButton(button));
    QCOMPARE(states(*m_model, Qt::Vertical, 4), QString("- 2 - 2"));
    press(1, Qt::MouseButton(button));
    QCOMPARE(states(*m_model, Qt::Vertical, 4), QString("- 0 - 2"));
    QCOMPARE(m_model->m_log,
             QStringList({"1 vertical int:2 10", "3 vertical int:2 10", "1 vertical int:0 10"}));
}

void TstCheckedHeaderView::horizontalSectionsToggle()
{
    auto* header = new OpenHeader(Qt::Horizontal, m_view.get());
    m_view->setHorizontalHeader(header);
    const QPoint pos(header->sectionViewportPosition(1) + 3, 3);
    QTest::mousePress(header->viewport(), Qt::LeftButton, Qt::NoModifier, pos);
    QCOMPARE(states(*m_model, Qt::Horizontal, 2), QString("- 2"));
    QCOMPARE(states(*m_model, Qt::Vertical, 4), QString("- - - -"));
}

void TstCheckedHeaderView::stateOfSection_data()
{
    QTest::addColumn<QVariant>("state");
    QTest::addColumn<bool>("checked");
    QTest::newRow("checked") << QVariant(2) << true;
    QTest::newRow("partially checked") << QVariant(1) << false;
    QTest::newRow("unchecked") << QVariant(0) << false;
    QTest::newRow("another number") << QVariant(3) << false;
    QTest::newRow("text of the number") << QVariant("2") << true;
    QTest::newRow("other text") << QVariant("checked") << false;
    QTest::newRow("no data") << QVariant() << false;
    QTest::newRow("null number") << QVariant(QVariant::Int) << false;
}

void TstCheckedHeaderView::stateOfSection()
{
    QFETCH(QVariant, state);
    QFETCH(bool, checked);
    m_model->setHeaderData(2, Qt::Vertical, state, Qt::CheckStateRole);
    m_style->m_boxes.clear();
    QPixmap pixmap(40, 40);
    QPainter painter(&pixmap);
    m_header->paintSection(&painter, QRect(0, 0, 40, 40), 2);
    QCOMPARE(m_style->m_boxes.size(), 1);
    QCOMPARE(m_style->m_boxes.first().state.testFlag(QStyle::State_On), checked);
    QCOMPARE(m_style->m_boxes.first().state.testFlag(QStyle::State_Off), !checked);

    press(2);
    QCOMPARE(m_model->headerData(2, Qt::Vertical, Qt::CheckStateRole).toInt(), checked ? 0 : 2);
}

void TstCheckedHeaderView::movedSectionTogglesItself()
{
    m_header->moveSection(3, 0);
    press(3);
    QCOMPARE(states(*m_model, Qt::Vertical, 4), QString("- - - 2"));
    QTest::mousePress(m_header->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
    QCOMPARE(states(*m_model, Qt::Vertical, 4), QString("- - - 0"));
}

void TstCheckedHeaderView::pressBesideTheSectionsDoesNothing()
{
    QTest::mousePress(m_header->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(3, m_header->length() + 3));
    QCOMPARE(m_model->m_log, QStringList());
}

void TstCheckedHeaderView::disabledHeaderKeepsItsState()
{
    m_header->setEnabled(false);
    QMouseEvent event(QEvent::MouseButtonPress, QPointF(3, 3), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(m_header->viewport(), &event);
    m_header->mousePressEvent(&event); // which Qt would not call
    QCOMPARE(m_model->m_log, QStringList());
    m_header->setEnabled(true);
    m_header->mousePressEvent(&event);
    QCOMPARE(m_model->m_log.size(), 1);
    m_model->m_log.clear();
    m_view->setEnabled(false);
    QApplication::sendEvent(m_header->viewport(), &event);
    QCOMPARE(m_model->m_log, QStringList());
}

void TstCheckedHeaderView::refusedToggleChangesNothing()
{
    m_model->m_refuse = true;
    press(0);
    press(0);
    QCOMPARE(m_model->m_log, QStringList({"0 vertical int:2 10", "0 vertical int:2 10"}));
    QCOMPARE(states(*m_model, Qt::Vertical, 4), QString("- - - -"));
}

void TstCheckedHeaderView::withoutModelNothingHappens()
{
    OpenHeader header(Qt::Vertical, nullptr);
    header.setStyle(m_style.get());
    header.resize(40, 40);
    QTest::mousePress(header.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
    QPixmap pixmap(40, 40);
    QPainter painter(&pixmap);
    m_style->m_boxes.clear();
    header.paintSection(&painter, QRect(0, 0, 40, 40), 0);
    QCOMPARE(m_style->m_boxes.size(), 1);
    QVERIFY(m_style->m_boxes.first().state.testFlag(QStyle::State_Off));
}

void TstCheckedHeaderView::pressNeitherSelectsNorSorts()
{
    m_view->setSortingEnabled(true);
    auto* header = new OpenHeader(Qt::Horizontal, m_view.get());
    m_view->setHorizontalHeader(header);
    header->setSectionsClickable(true);
    header->setSectionsMovable(true);
    header->setSortIndicatorShown(true);
    header->setSortIndicator(0, Qt::AscendingOrder);
    m_view->clearSelection();
    const QPoint pos(header->sectionViewportPosition(1) + 3, 3);
    QTest::mousePress(header->viewport(), Qt::LeftButton, Qt::NoModifier, pos);
    QTest::mouseRelease(header->viewport(), Qt::LeftButton, Qt::NoModifier, pos);
    QCOMPARE(header->sortIndicatorSection(), 0);
    QCOMPARE(header->sortIndicatorOrder(), Qt::AscendingOrder);
    press(1);
    QVERIFY(!m_view->selectionModel()->hasSelection());
    QCOMPARE(header->visualIndex(1), 1);
}

void TstCheckedHeaderView::releaseClicksNothing()
{
    m_header->setSectionsClickable(true);
    QSignalSpy pressed(m_header, &QHeaderView::sectionPressed);
    QSignalSpy clicked(m_header, &QHeaderView::sectionClicked);
    QSignalSpy entered(m_header, &QHeaderView::sectionEntered);
    press(2);
    QCOMPARE(pressed.count() + clicked.count() + entered.count(), 0);
    QCOMPARE(states(*m_model, Qt::Vertical, 4), QString("- - 2 -"));
}

void TstCheckedHeaderView::everySectionHasItsBox()
{
    m_style->m_boxes.clear();
    m_header->viewport()->repaint();
    QCOMPARE(m_style->m_boxes.size(), 4);
    m_style->m_boxes.clear();
    m_model->setHeaderData(1, Qt::Vertical, 2, Qt::CheckStateRole);
    m_header->viewport()->repaint();
    QStringList on;
    for (const DrawnBox& box : qAsConst(m_style->m_boxes))
        on << QString::number(box.state.testFlag(QStyle::State_On));
    QCOMPARE(on.join(' '), QString("0 1 0 0"));
}

void TstCheckedHeaderView::boxIsDrawnOverTheSection()
{
    QPixmap pixmap(40, 40);
    QPainter painter(&pixmap);
    painter.setPen(Qt::green);
    m_style->m_boxes.clear();
    m_style->m_otherElements = 0;
    m_header->paintSection(&painter, QRect(0, 0, 40, 40), 0);
    QCOMPARE(m_style->m_boxes.size(), 1);
    QVERIFY(m_style->m_boxes.first().elementsBefore > 0);
    // What the base did to the painter is undone: the box finds it as the caller set it.
    QCOMPARE(m_style->m_boxes.first().pen.color(), QColor(Qt::green));
    QCOMPARE(painter.pen().color(), QColor(Qt::green));
}

void TstCheckedHeaderView::boxIsCentred_data()
{
    QTest::addColumn<QRect>("section");
    QTest::newRow("even") << QRect(10, 20, 34, 22);
    QTest::newRow("odd") << QRect(10, 20, 33, 23);
    QTest::newRow("smaller than the box") << QRect(0, 0, 5, 5);
    QTest::newRow("smaller by an even number") << QRect(7, 9, 6, 8);
}

void TstCheckedHeaderView::boxIsCentred()
{
    QFETCH(QRect, section);
    const QStyleOptionButton option;
    const QRect indicator = m_style->subElementRect(QStyle::SE_CheckBoxIndicator, &option, nullptr);
    QVERIFY(indicator.width() > 6);
    QPixmap pixmap(60, 60);
    QPainter painter(&pixmap);
    m_style->m_boxes.clear();
    m_header->paintSection(&painter, section, 0);
    QCOMPARE(m_style->m_boxes.size(), 1);
    const QRect box = m_style->m_boxes.first().rect;
    QCOMPARE(box.size(), indicator.size());
    QCOMPARE(box.left(), section.left() + int((section.width() - box.width()) / 2.0));
    QCOMPARE(box.top(), section.top() + int((section.height() - box.height()) / 2.0));
}

void TstCheckedHeaderView::disabledHeaderDrawsADisabledBox()
{
    QPixmap pixmap(40, 40);
    QPainter painter(&pixmap);
    m_style->m_boxes.clear();
    m_header->paintSection(&painter, QRect(0, 0, 40, 40), 0);
    m_view->setEnabled(false);
    m_header->paintSection(&painter, QRect(0, 0, 40, 40), 0);
    QCOMPARE(m_style->m_boxes.at(0).state, QStyle::State(QStyle::State_Enabled | QStyle::State_Off));
    QCOMPARE(m_style->m_boxes.at(1).state, QStyle::State(QStyle::State_Off));
}

void TstCheckedHeaderView::sizeIsThatOfACheckBox()
{
    const QStyleOptionButton option;
    const QSize box = m_style->sizeFromContents(QStyle::CT_CheckBox, &option, QSize(), nullptr);
    QCOMPARE(m_header->sectionSizeFromContents(0), QSize(box.width() + 12, box.height()));
    m_model->setHeaderData(0, Qt::Vertical, QString("a text much wider than a check box"), Qt::EditRole);
    QCOMPARE(m_header->sectionSizeFromContents(0), QSize(box.width() + 12, box.height()));
}

JED_TEST_MAIN(TstCheckedHeaderView)
#include "tst_checkedheaderview.moc"
