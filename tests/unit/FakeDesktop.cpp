// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "FakeDesktop.h"

#include "Platform/ApplicationObject.h"
#include "Platform/Clipboard.h"
#include "Platform/ContinuousClock.h"
#include "Platform/SystemAppearance.h"

#include <functional>
#include <map>
#include <utility>

namespace {

using std::chrono::milliseconds;

struct ClipboardState
{
    std::optional<QString> text;
    std::int64_t changeCount = 7;
    int clears = 0;
};

struct ClockState
{
    milliseconds now{0};
    /// A multimap keeps tasks with the same deadline in the order of the calls.
    std::multimap<milliseconds, std::function<void()>> tasks;
};

class SettableAppearance final : public Platform::SystemAppearance
{
public:
    explicit SettableAppearance(QObject* parent)
        : SystemAppearance(parent)
    {
    }

    using SystemAppearance::update;
};

template<typename State>
State& state()
{
    static State instance;
    return instance;
}

void replaceClipboard(std::optional<QString> text)
{
    auto& clipboard = state<ClipboardState>();
    clipboard.text = std::move(text);
    ++clipboard.changeCount;
}

} // namespace

std::optional<QString> FakeClipboard::text()
{
    return state<ClipboardState>().text;
}

int FakeClipboard::clears()
{
    return state<ClipboardState>().clears;
}

void FakeClipboard::writeAsAnotherProgram(const QString& text)
{
    replaceClipboard(text);
}

void FakeClipboard::reset()
{
    state<ClipboardState>() = {};
}

void FakeClock::advance(milliseconds time)
{
    auto& clock = state<ClockState>();
    const milliseconds end = clock.now + time;
    while (!clock.tasks.empty() && clock.tasks.begin()->first <= end) {
        const auto due = clock.tasks.extract(clock.tasks.begin());
        clock.now = due.key();
        due.mapped()();
    }
    clock.now = end;
}

std::size_t FakeClock::pendingTasks()
{
    return state<ClockState>().tasks.size();
}

void FakeClock::reset()
{
    state<ClockState>() = {};
}

void FakeAppearance::set(std::optional<bool> dark, bool reducedMotion)
{
    Platform::applicationObject<SettableAppearance>().update(dark, reducedMotion);
}

namespace Platform {

void Clipboard::setSecret(const QString& text)
{
    replaceClipboard(text);
}

void Clipboard::clear()
{
    replaceClipboard(std::nullopt);
    ++state<ClipboardState>().clears;
}

std::int64_t Clipboard::changeCount()
{
    return state<ClipboardState>().changeCount;
}

void ContinuousClock::after(milliseconds wait, std::function<void()> task)
{
    auto& clock = state<ClockState>();
    clock.tasks.emplace(clock.now + wait, std::move(task));
}

SystemAppearance& SystemAppearance::instance()
{
    return applicationObject<SettableAppearance>();
}

} // namespace Platform
