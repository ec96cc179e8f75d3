// SPDX-License-Identifier: MIT
#include "platform/lumora/events/LuKeyboardEvent.h"
#include "platform/lumora/viewer/LuViewer.h"
#include "platform/lumora/viewer/glfw/LuGlfwContext.h"
#include "platform/lumora/viewer/glfw/LuGlfwKeys.h"

#include <GLFW/glfw3.h>

#include <cmath>
#include <optional>
#include <utility>

namespace {

class LuGlfwViewer : public LuViewer {
public:
    LuGlfwViewer(std::unique_ptr<LuGlfwContext> context, GLFWwindow* window);
    ~LuGlfwViewer() override;
    void setTitle(const LvString& title) override { glfwSetWindowTitle(m_window, title.getString()); }

    /// No character has come for the last key that went down.
    static void releaseAnyKey() {
        if (s_holder)
            s_holder->releaseKey();
    }

protected:
    void setShown(bool isShown) override;
    void swapBuffers() override { glfwSwapBuffers(m_window); }

private:
    static LuGlfwViewer& of(GLFWwindow* window) {
        return *static_cast<LuGlfwViewer*>(glfwGetWindowUserPointer(window));
    }
    void listen();
    void listenToKeys();
    void updateSize();
    void setPointer(double x, double y);
    void send(LuEvent& event);
    void sendButton(int button, int action, int modifiers);
    void sendWheel(double clicks);
    void sendKey(LuKeyboardEvent& event, char32_t character);
    void holdKey(int key, int scancode, int action, int modifiers);
    void takeCharacter(char32_t character);
    void releaseKey();
    std::optional<LuKeyboardEvent> takeHeldKey();

    GLFWwindow* m_window;
    LvVec2i32 m_pointer;
    int m_modifiers = 0;
    double m_wheel = 0; ///< What is left of clicks of a wheel that turns finely.
    /// A key that went down. The character that it types is told after it, if it types any.
    std::optional<LuKeyboardEvent> m_heldKey;
    static inline LuGlfwViewer* s_holder = nullptr; ///< Who has one.
};

int getModifier(int key) {
    switch (key) {
    case GLFW_KEY_LEFT_SHIFT:
    case GLFW_KEY_RIGHT_SHIFT:
        return GLFW_MOD_SHIFT;
    case GLFW_KEY_LEFT_CONTROL:
    case GLFW_KEY_RIGHT_CONTROL:
        return GLFW_MOD_CONTROL;
    case GLFW_KEY_LEFT_ALT:
    case GLFW_KEY_RIGHT_ALT:
        return GLFW_MOD_ALT;
    default:
        return 0;
    }
}

LuGlfwViewer::LuGlfwViewer(std::unique_ptr<LuGlfwContext> context, GLFWwindow* window)
    : LuViewer(std::move(context)), m_window(window) {
    glfwSetWindowUserPointer(window, this);
    glfwSetInputMode(window, GLFW_LOCK_KEY_MODS, GLFW_TRUE);
    listen();
    listenToKeys();
    updateSize();
}

LuGlfwViewer::~LuGlfwViewer() {
    takeHeldKey();
    // The window lives on for a moment, with the context of the view.
    glfwSetWindowCloseCallback(m_window, nullptr);
    glfwSetWindowRefreshCallback(m_window, nullptr);
    glfwSetFramebufferSizeCallback(m_window, nullptr);
    glfwSetCursorPosCallback(m_window, nullptr);
    glfwSetMouseButtonCallback(m_window, nullptr);
    glfwSetScrollCallback(m_window, nullptr);
    glfwSetKeyCallback(m_window, nullptr);
    glfwSetCharCallback(m_window, nullptr);
    glfwSetWindowFocusCallback(m_window, nullptr);
}

void LuGlfwViewer::listen() {
    glfwSetWindowCloseCallback(m_window, [](GLFWwindow* window) {
        glfwSetWindowShouldClose(window, GLFW_FALSE);
        of(window).close();
    });
    glfwSetWindowRefreshCallback(m_window, [](GLFWwindow* window) { of(window).paint(); });
    glfwSetFramebufferSizeCallback(m_window, [](GLFWwindow* window, int, int) { of(window).updateSize(); });
    glfwSetCursorPosCallback(m_window, [](GLFWwindow* window, double x, double y) {
        LuGlfwViewer& viewer = of(window);
        viewer.releaseKey();
        viewer.setPointer(x, y);
        LuLocation2Event event;
        viewer.send(event);
    });
    glfwSetMouseButtonCallback(m_window, [](GLFWwindow* window, int button, int action, int modifiers) {
        of(window).sendButton(button, action, modifiers);
    });
    glfwSetScrollCallback(m_window, [](GLFWwindow* window, double, double y) { of(window).sendWheel(y); });
}

void LuGlfwViewer::listenToKeys() {
    glfwSetKeyCallback(m_window, [](GLFWwindow* window, int key, int scancode, int action, int modifiers) {
        of(window).holdKey(key, scancode, action, modifiers);
    });
    glfwSetCharCallback(m_window,
                        [](GLFWwindow* window, unsigned character) { of(window).takeCharacter(character); });
    // What is held belongs to this window still.
    glfwSetWindowFocusCallback(m_window, [](GLFWwindow* window, int) { of(window).releaseKey(); });
}

void LuGlfwViewer::setShown(bool isShown) {
    if (isShown)
        glfwShowWindow(m_window);
    else
        glfwHideWindow(m_window);
}

void LuGlfwViewer::updateSize() {
    int width = 0;
    int height = 0;
    glfwGetFramebufferSize(m_window, &width, &height);
    getView().setSize(width, height);
}

void LuGlfwViewer::setPointer(double x, double y) {
    // Where the system counts in other units than pixels, the two sizes differ.
    int width = 0;
    int height = 0;
    glfwGetWindowSize(m_window, &width, &height);
    const LvVec2i32 pixels = getView().getRegion().getSize();
    const double scaleX = width > 0 ? static_cast<double>(pixels.x) / width : 1;
    const double scaleY = height > 0 ? static_cast<double>(pixels.y) / height : 1;
    m_pointer = {static_cast<int>(std::floor(x * scaleX)),
                 pixels.y - 1 - static_cast<int>(std::floor(y * scaleY))};
}

void LuGlfwViewer::send(LuEvent& event) {
    event.setTime(glfwGetTime());
    event.setPosition(m_pointer);
    event.setShiftDown((m_modifiers & GLFW_MOD_SHIFT) != 0);
    event.setCtrlDown((m_modifiers & GLFW_MOD_CONTROL) != 0);
    event.setAltDown((m_modifiers & GLFW_MOD_ALT) != 0);
    getView().handleEvent(event);
}

void LuGlfwViewer::sendButton(int button, int action, int modifiers) {
    releaseKey();
    m_modifiers = modifiers;
    LuMouseButtonEvent event;
    if (button == GLFW_MOUSE_BUTTON_LEFT)
        event.setButton(LuMouseButtonEvent::BUTTON1);
    else if (button == GLFW_MOUSE_BUTTON_MIDDLE)
        event.setButton(LuMouseButtonEvent::BUTTON2);
    else if (button == GLFW_MOUSE_BUTTON_RIGHT)
        event.setButton(LuMouseButtonEvent::BUTTON3);
    else
        return;
    event.setState(action == GLFW_PRESS ? LuButtonEvent::DOWN : LuButtonEvent::UP);
    send(event);
}

void LuGlfwViewer::sendWheel(double clicks) {
    releaseKey();
    m_wheel += clicks;
    for (; m_wheel >= 1; m_wheel -= 1) {
        LuMouseButtonEvent event(LuMouseButtonEvent::WHEEL_UP, LuButtonEvent::DOWN, m_pointer);
        send(event);
    }
    for (; m_wheel <= -1; m_wheel += 1) {
        LuMouseButtonEvent event(LuMouseButtonEvent::WHEEL_DOWN, LuButtonEvent::DOWN, m_pointer);
        send(event);
    }
}

void LuGlfwViewer::sendKey(LuKeyboardEvent& event, char32_t character) {
    event.setPrintableCharacter(character);
    send(event);
}

void LuGlfwViewer::holdKey(int key, int scancode, int action, int modifiers) {
    releaseKey();
    const bool isDown = action != GLFW_RELEASE;
    // For a modifier itself the system tells how it was before.
    const int own = getModifier(key);
    m_modifiers = isDown ? modifiers | own : modifiers & ~own;
    LuKeyboardEvent event(luGetGlfwKey(key, scancode, (modifiers & GLFW_MOD_NUM_LOCK) != 0),
                          isDown ? LuButtonEvent::DOWN : LuButtonEvent::UP);
    if (!isDown) {
        sendKey(event, 0);
        return;
    }
    m_heldKey = event;
    s_holder = this;
}

std::optional<LuKeyboardEvent> LuGlfwViewer::takeHeldKey() {
    if (s_holder == this)
        s_holder = nullptr;
    return std::exchange(m_heldKey, std::nullopt);
}

void LuGlfwViewer::takeCharacter(char32_t character) {
    // Several keys, or none, may have made it.
    LuKeyboardEvent event = takeHeldKey().value_or(LuKeyboardEvent(LuKeyboardEvent::ANY));
    sendKey(event, character);
}

void LuGlfwViewer::releaseKey() {
    if (std::optional<LuKeyboardEvent> event = takeHeldKey())
        sendKey(*event, 0);
}

} // namespace

std::unique_ptr<LuViewer> LuViewer::create(const LvString& title, int width, int height) {
    std::unique_ptr<LuGlfwContext> context = LuGlfwContext::create(title, width, height);
    if (!context)
        return nullptr;
    GLFWwindow* const window = context->getWindow();
    return std::make_unique<LuGlfwViewer>(std::move(context), window);
}

void LuViewer::waitForSystem(double seconds) {
    if (seconds < 0)
        glfwWaitEvents();
    else if (seconds > 0)
        glfwWaitEventsTimeout(seconds);
    else
        glfwPollEvents();
    LuGlfwViewer::releaseAnyKey();
}

bool LuViewer::areOtherWindowsShown() { return false; }
