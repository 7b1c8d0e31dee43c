// SPDX-License-Identifier: MIT
// What people do with mouse and keys while an operation shows its progress. The events come from
// another client of the X server, as those of a person do.
#include "host/desktop/window/progressdisplay.h"

#include <QApplication>
#include <QVBoxLayout>
#include <QtTest>

#include <xcb/xcb.h>

#include <gtest/gtest.h>

using orvane::ProgressDisplay;

namespace {

const xcb_keycode_t SomeKey = 38; // a letter, on any keyboard

class Counter : public QWidget
{
public:
    Counter() { setFocusPolicy(Qt::StrongFocus); }

    int presses = 0;
    int keys = 0;

protected:
    void mousePressEvent(QMouseEvent *) override { ++presses; }
    void keyPressEvent(QKeyEvent *) override { ++keys; }
};

class Person
{
public:
    Person() : m_connection(xcb_connect(nullptr, nullptr)) {}
    ~Person() { xcb_disconnect(m_connection); }
    Person(const Person &) = delete;
    Person &operator=(const Person &) = delete;

    bool isThere() const { return xcb_connection_has_error(m_connection) == 0; }

    void clickAndType(const QWidget &window, const QPoint &place)
    {
        xcb_button_press_event_t event = {};
        event.event = xcb_window_t(window.winId());
        event.root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
        event.event_x = int16_t(place.x());
        event.event_y = int16_t(place.y());
        event.root_x = int16_t(window.mapToGlobal(place).x());
        event.root_y = int16_t(window.mapToGlobal(place).y());
        event.same_screen = 1;
        send(&event, XCB_BUTTON_PRESS, XCB_BUTTON_INDEX_1, 0, XCB_EVENT_MASK_BUTTON_PRESS);
        send(&event, XCB_BUTTON_RELEASE, XCB_BUTTON_INDEX_1, XCB_BUTTON_MASK_1,
             XCB_EVENT_MASK_BUTTON_RELEASE);
        send(&event, XCB_KEY_PRESS, SomeKey, 0, XCB_EVENT_MASK_KEY_PRESS);
        send(&event, XCB_KEY_RELEASE, SomeKey, 0, XCB_EVENT_MASK_KEY_RELEASE);
        free(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    }

private:
    // Events of buttons and keys are laid out alike.
    void send(xcb_button_press_event_t *event, uint8_t kind, uint8_t detail, uint16_t state,
              xcb_event_mask_t mask)
    {
        event->response_type = kind;
        event->detail = detail;
        event->state = state;
        event->time = ++m_time;
        xcb_send_event(m_connection, 0, event->event, mask, reinterpret_cast<const char *>(event));
    }

    xcb_connection_t *m_connection;
    xcb_timestamp_t m_time = 1000000;
};

} // namespace

TEST(ProgressInput, mouseAndKeysWaitUntilTheOperationIsThrough)
{
    QWidget window;
    auto *counter = new Counter;
    auto *progress = new ProgressDisplay(nullptr);
    auto *layout = new QVBoxLayout(&window);
    layout->addWidget(counter, 1);
    layout->addWidget(progress);
    window.resize(400, 300);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    counter->setFocus();
    QTest::qWait(100);
    Person person;
    ASSERT_TRUE(person.isThere());

    progress->Start(QStringLiteral("stage"), 100);
    person.clickAndType(window, counter->geometry().center());
    for (int i = 0; i <= 100; ++i) {
        progress->Set(i);
        QTest::qSleep(3);
    }
    progress->Start(QStringLiteral("next stage"), 10);
    progress->End();
    EXPECT_EQ(counter->presses, 0);
    EXPECT_EQ(counter->keys, 0);
    QTest::qWait(200); // the event loop of the application
    EXPECT_EQ(counter->presses, 1);
    EXPECT_EQ(counter->keys, 1);
}
