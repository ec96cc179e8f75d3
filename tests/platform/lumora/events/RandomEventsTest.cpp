// SPDX-License-Identifier: MIT
// Scenes and events made by chance: what is passed over makes no difference to anybody.
#include "platform/lumora/actions/LuPickedPoint.h"
#include "platform/lumora/nodes/LuEventCallback.h"
#include "tests/platform/lumora/events/ProbeDragger.h"

#include <algorithm>
#include <random>
#include <string>

namespace {

/// A scene made by chance, the same for the same seed. In a loud one nothing can be passed over.
class RandomScene {
public:
    RandomScene(unsigned seed, bool isLoud) : m_random(seed), m_isLoud(isLoud) {
        auto* const camera = new LuOrthographicCamera;
        camera->height.setValue(200);
        camera->position.setValue({0, 0, 100});
        camera->farDistance.setValue(200);
        m_root->addChild(camera);
        // One of each that changes.
        for (const unsigned kind : {0U, 1U, 2U, 5U})
            addOne(m_root.get(), 2, kind);
        fill(m_root.get(), 4);
    }
    ~RandomScene() { m_action.releaseGrabber(); }
    RandomScene(const RandomScene&) = delete;
    RandomScene& operator=(const RandomScene&) = delete;

    /// What is heard of an event, and by whom, and what becomes of it.
    std::string send(const LuEvent& event, int number) {
        m_number = number;
        m_heard.clear();
        m_action.setEvent(&event);
        const bool isHandled = m_action.apply(m_root.get());
        const auto grabber = std::find(m_nodes.begin(), m_nodes.end(), m_action.getGrabber());
        return m_heard + (isHandled ? "handled " : "") + std::to_string(grabber - m_nodes.begin());
    }

    /// Changes something.
    void change(unsigned what, unsigned which) {
        LuGroup* const group = m_groups[which % m_groups.size()];
        LuEventCallback* const callback = m_callbacks[which % m_callbacks.size()];
        switch (what % 8) {
        case 0:
            m_switches[which % m_switches.size()]->whichChild.setValue(static_cast<int>(what / 8 % 3) - 1);
            break;
        case 1:
            callback->addEventCallback(getType(what / 8), &hear, this);
            break;
        case 2:
            callback->removeEventCallback(getType(what / 8), &hear, this);
            break;
        case 3:
            // The witness stays where it is, at the end.
            if (what / 8 % 4 == 0 && group->getNumChildren() > 1)
                group->removeChild(static_cast<int>(what / 32) % (group->getNumChildren() - 1));
            break;
        case 4:
            group->insertChild(callback, 0);
            break;
        case 5:
            listen(m_draggers[which % m_draggers.size()]);
            break;
        case 6:
            m_places[which % m_places.size()]->translation.setValue(getPlace(what, which));
            break;
        default:
            m_action.setPickRoot(what / 8 % 4 == 0 ? group : nullptr);
        }
    }

    int countVisits() const {
        int count = 0;
        for (const Witness* witness : m_witnesses)
            count += witness->count;
        return count;
    }

private:
    unsigned choose(unsigned count) { return static_cast<unsigned>(m_random()) % count; }

    static LuType getType(unsigned number) {
        const LuType types[] = {LuEvent::getClassTypeId(), LuKeyboardEvent::getClassTypeId(),
                                LuButtonEvent::getClassTypeId(), LuLocation2Event::getClassTypeId(),
                                LuMouseButtonEvent::getClassTypeId()};
        return types[number % std::size(types)];
    }
    static LvVec3f getPlace(unsigned x, unsigned y) {
        return {static_cast<float>(x % 160) - 80.0F, static_cast<float>(y % 160) - 80.0F, 0};
    }

    template <class Node>
    Node* add(LuGroup* below, Node* node) {
        m_held.push_back(std::make_unique<Held<LuNode>>(node));
        m_nodes.push_back(node);
        below->addChild(node);
        return node;
    }

    void fill(LuGroup* group, int depth) {
        m_groups.push_back(group);
        const unsigned length = 2 + choose(4);
        for (unsigned i = 0; i < length; ++i)
            addOne(group, depth, choose(9) == 0 ? 0 : 1 + choose(depth > 0 ? 8 : 4));
        m_witnesses.push_back(add(group, new Witness(!m_isLoud)));
    }

    void addOne(LuGroup* group, int depth, unsigned kind) {
        if (kind == 0) {
            m_callbacks.push_back(add(group, new LuEventCallback));
            m_callbacks.back()->addEventCallback(getType(choose(5)), &hear, this);
        } else if (kind == 1) {
            m_places.push_back(add(group, new LuTranslation));
            m_places.back()->translation.setValue(getPlace(choose(999), choose(999)));
        } else if (kind < 5) {
            auto* const dragger = add(group, new ProbeDragger);
            m_draggers.push_back(dragger);
            if (choose(3) > 0)
                listen(dragger);
            if (depth > 1)
                fill(dragger->getGeometry(), depth - 2);
            else
                m_witnesses.push_back(add(dragger->getGeometry(), new Witness(!m_isLoud)));
        } else if (kind == 5) {
            m_switches.push_back(add(group, new LuSwitch));
            m_switches.back()->whichChild.setValue(static_cast<int>(choose(3)) - 1);
            fill(m_switches.back(), depth - 1);
        } else if (kind == 6) {
            fill(add(group, new LuGroup), depth - 1);
        } else {
            fill(add(group, new LuSeparator), depth - 1);
        }
    }

    void listen(LuDragger* dragger) {
        dragger->addStartCallback([](void* data, LuDragger* d) { self(data).note('S', d); }, this);
        dragger->addMotionCallback([](void* data, LuDragger* d) { self(data).note('M', d); }, this);
        dragger->addFinishCallback([](void* data, LuDragger* d) { self(data).note('F', d); }, this);
    }

    static RandomScene& self(void* data) { return *static_cast<RandomScene*>(data); }

    /// The number of the node; something that depends on it and the event alone is the result.
    unsigned note(char what, const LuNode* node) {
        const auto index = std::find(m_nodes.begin(), m_nodes.end(), node) - m_nodes.begin();
        m_heard += what + std::to_string(index) + ' ';
        return static_cast<unsigned>(index * 7919 + m_number * 104729) / 16;
    }

    /// Callbacks look at what is picked, take the event, grab and change the scene, each now and then.
    static void hear(void* data, LuEventCallback* node) {
        RandomScene& scene = self(data);
        const unsigned mood = scene.note('C', node);
        if (mood % 5 == 0) {
            const LuPickedPoint* const point = node->getPickedPoint();
            scene.note('P', point ? point->getPath()->getTail() : nullptr);
        }
        if (mood % 23 == 0)
            node->setHandled();
        if (mood % 101 == 0)
            node->grabEvents();
        else
            node->releaseEvents();
        if (mood % 19 == 0)
            scene.change(mood / 19, mood / 3);
        if (mood % 103 == 0)
            node->getAction()->setGrabber(scene.m_draggers[mood % scene.m_draggers.size()]);
    }

    std::mt19937 m_random;
    bool m_isLoud;
    std::vector<std::unique_ptr<Held<LuNode>>> m_held;
    Held<LuSeparator> m_root;
    LuHandleEventAction m_action{LvViewportRegion(200, 200)};
    std::vector<LuNode*> m_nodes;
    std::vector<LuGroup*> m_groups;
    std::vector<LuSwitch*> m_switches;
    std::vector<LuTranslation*> m_places;
    std::vector<LuEventCallback*> m_callbacks;
    std::vector<ProbeDragger*> m_draggers;
    std::vector<Witness*> m_witnesses;
    std::string m_heard;
    int m_number = 0;
};

/// Any event, made by chance.
std::unique_ptr<LuEvent> makeEvent(std::mt19937& random) {
    const auto choose = [&random](unsigned count) {
        return static_cast<int>(static_cast<unsigned>(random()) % count);
    };
    const LvVec2i32 pixel(choose(200), choose(200));
    const LvVec3f place(static_cast<float>(pixel.x) - 100, static_cast<float>(pixel.y) - 100, 0);
    const auto state = choose(2) == 0 ? LuButtonEvent::UP : LuButtonEvent::DOWN;
    switch (choose(12)) {
    case 0:
        return std::make_unique<LuLocation2Event>(pixel);
    case 1:
        return std::make_unique<LuKeyboardEvent>(LuKeyboardEvent::A, state);
    case 2:
        return std::make_unique<LuMouseButtonEvent>(LuMouseButtonEvent::BUTTON2, state, pixel);
    case 3:
        return std::make_unique<LuTrackerButtonEvent>(state,
                                                      LvLine::fromPoints(place + LvVec3f(0, 0, 90), place));
    case 4:
        return std::make_unique<LuEvent>();
    case 5:
        return std::make_unique<LuMouseButtonEvent>(LuMouseButtonEvent::BUTTON1, LuButtonEvent::UP, pixel);
    default:
        return std::make_unique<LuMouseButtonEvent>(LuMouseButtonEvent::BUTTON1, LuButtonEvent::DOWN, pixel);
    }
}

using RandomEventsTest = ProbeScene;

TEST_F(RandomEventsTest, anything_isHeardAsIfNothingWerePassedOver) {
    int quietVisits = 0, loudVisits = 0;
    int heard = 0;
    for (unsigned seed = 1; seed <= 40; ++seed) {
        RandomScene quiet(seed, false), loud(seed, true);
        std::mt19937 random(seed);
        for (int number = 0; number < 400; ++number) {
            const std::unique_ptr<LuEvent> event = makeEvent(random);
            const std::string expected = loud.send(*event, number);
            ASSERT_EQ(quiet.send(*event, number), expected) << "seed " << seed << ", event " << number;
            heard += expected.find('S') != std::string::npos ? 1 : 0;
            if (number % 4 == 0) {
                const auto what = static_cast<unsigned>(random()), which = static_cast<unsigned>(random());
                quiet.change(what, which);
                loud.change(what, which);
            }
        }
        quietVisits += quiet.countVisits();
        loudVisits += loud.countVisits();
    }
    EXPECT_GT(heard, 100) << "presses that met a dragger";
    EXPECT_LT(quietVisits, loudVisits / 2);
}

} // namespace
