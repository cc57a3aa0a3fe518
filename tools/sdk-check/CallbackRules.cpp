// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "CallbackRules.h"

#include "FunctionRules.h"
#include "Report.h"

#include <algorithm>
#include <cstring>
#include <mutex>
#include <string>
#include <thread>

namespace {

enum Rule
{
    CalledOnce,
    CalledAlone,
    MayCall,
    MayUnregister,
    NeverLate
};

using Registration = decltype(&VELT_DevSrv_RegisterDevMgrCallback);

/// A function that registers or unregisters callbacks.
struct Function
{
    const char *name;
    Registration Sdk::*member;

    VELT_ERROR operator()(const Sdk &sdk, int row, VELT_DEVICE_CALLBACK callback) const
    {
        if (!(sdk.*member))
            return VELT_ERROR_NOT_SUPPORTED;
        const Step step(row, name);
        const VELT_ERROR result = (sdk.*member)(callback);
        step.done(result);
        return result;
    }
};

/// A kind of events.
struct Kind
{
    Function add;
    Function remove;
};

// clang-format off
#define FUNCTION(name) {#name, &Sdk::name}
// clang-format on
const Kind kinds[] = {
    {FUNCTION(VELT_DevSrv_RegisterDevMgrCallback), FUNCTION(VELT_DevSrv_UnRegisterDevMgrCallback)},
    {FUNCTION(VELT_DevSrv_RegisterDevInitEventCallback),
     FUNCTION(VELT_DevSrv_UnRegisterDevInitEventCallback)},
};

Report &report()
{
    return Report::instance();
}

int ignore(int, void *)
{
    return 0;
}

void checkAdding(const Sdk &sdk, const Kind &kind)
{
    VELT_ERROR results[2];
    for (VELT_ERROR &result : results)
        result = kind.add(sdk, 0, ignore);
    if (results[0] != VELT_SUCCESS)
        return;
    if (results[1] != VELT_SUCCESS)
        report().fail(0, "fails for a callback that is registered already");
    kind.remove(sdk, 0, ignore);
    if (kind.remove(sdk, 0, ignore) == VELT_SUCCESS)
        report().fail(0, "counts: registered twice, a callback can be unregistered twice");
}

void checkRemoving(const Sdk &sdk, const Kind &kind, const Kind &other)
{
    if (kind.remove(sdk, 0, ignore) == VELT_SUCCESS)
        report().fail(0, "gives 0 for a callback that is not registered");
    if (kind.add(sdk, 0, ignore) != VELT_SUCCESS)
        return;
    if (other.remove(sdk, 0, ignore) == VELT_SUCCESS)
        report().fail(0, "ends together with %s", other.remove.name);
    if (kind.remove(sdk, 0, ignore) != VELT_SUCCESS)
        report().fail(0, "fails for a callback that is registered");
}

// ---- With events ----

void sleepFor(int milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

/// What the callbacks of one kind saw and do.
struct Watched
{
    std::mutex mutex;
    std::string order; ///< of the calls: t of the callback registered twice, o of that once
    std::atomic<bool> hasCalled{false};
    std::atomic<bool> endsItself{false}; ///< the callback that unregisters itself is registered
    std::atomic<bool> isSlow{false};     ///< the slow callback is registered
    std::atomic<bool> isInside{false};   ///< the slow callback runs
};

const Sdk *watchedSdk = nullptr;
Watched watched[2];
std::atomic<int> running{0};
std::atomic<int> counts[5];         ///< by rule, how often it was seen kept or broken
std::atomic<bool> isLeaving{false}; ///< the registration of a slow callback is being ended
std::atomic<bool> hasEnded{false};

/// A callback: what all of them check, around its own work.
template <int Index, void (*Work)(int index, VELT_DEVICE_CALLBACK self)>
int callback(int event, void *data)
{
    ++counts[CalledAlone];
    const bool isNested = Step::current() != nullptr;
    if (isNested)
        report().fail(CalledAlone, "calls back inside the call");
    if (++running > 1 && !isNested)
        report().fail(CalledAlone, "a callback is called while another runs");
    if (data)
        report().fail(CalledAlone, "event %d comes with data that is not null", event);
    if (hasEnded)
        report().fail(NeverLate, "event %d comes after unregistering has returned", event);
    else
        Work(Index, callback<Index, Work>);
    --running;
    return 0;
}

template <char Letter>
void note(int index, VELT_DEVICE_CALLBACK)
{
    const std::lock_guard<std::mutex> lock(watched[index].mutex);
    watched[index].order += Letter;
}

void callAll(int index, VELT_DEVICE_CALLBACK)
{
    if (watched[index].hasCalled.exchange(true))
        return;
    AllCallers(*watchedSdk, MayCall, false).run();
    ++counts[MayCall];
}

void endItself(int index, VELT_DEVICE_CALLBACK self)
{
    if (!watched[index].endsItself.exchange(false)) {
        report().fail(MayUnregister, "a callback that has unregistered itself is called again");
        return;
    }
    if (kinds[index].remove(*watchedSdk, MayUnregister, self) != VELT_SUCCESS)
        report().fail(MayUnregister, "%s fails inside the callback", kinds[index].remove.name);
    ++counts[MayUnregister];
}

void beSlow(int index, VELT_DEVICE_CALLBACK)
{
    Watched &kind = watched[index];
    if (!kind.isSlow)
        report().fail(NeverLate, "a callback is called after unregistering it has returned");
    kind.isInside = true;
    for (int i = 0; i < 100 && !isLeaving; ++i)
        sleepFor(1);
    sleepFor(20);
    kind.isInside = false;
}

/// Ends the registration of the slow callback while it runs, and begins it again.
template <int Index>
void interrupt()
{
    const auto slow = callback<Index, beSlow>;
    Watched &kind = watched[Index];
    if (!kind.isInside)
        return;
    isLeaving = true;
    kinds[Index].remove(*watchedSdk, NeverLate, slow);
    if (kind.isInside)
        report().fail(NeverLate, "%s returns while the callback runs", kinds[Index].remove.name);
    ++counts[NeverLate];
    kind.isSlow = false;
    sleepFor(100);
    isLeaving = false;
    kind.isSlow = true;
    kinds[Index].add(*watchedSdk, NeverLate, slow);
}

/// How often the callback that was registered twice was called for as many calls of the other.
void compare(Watched &kind)
{
    const std::lock_guard<std::mutex> lock(kind.mutex);
    const size_t first = kind.order.find('o');
    const size_t last = kind.order.rfind('o');
    if (first == last)
        return; // one event or none
    // Before the first and behind the last, one of the two may have been registered alone.
    const std::string between = kind.order.substr(first, last - first);
    const auto once = std::count(between.begin(), between.end(), 'o');
    const auto twice = std::count(between.begin(), between.end(), 't');
    counts[CalledOnce] += static_cast<int>(once);
    if (twice > once)
        report().fail(CalledOnce, "a callback registered twice is called twice for an event");
}

template <int Index>
void startWatching()
{
    const Kind &kind = kinds[Index];
    kind.add(*watchedSdk, CalledOnce, callback<Index, note<'t'>>);
    kind.add(*watchedSdk, CalledOnce, callback<Index, note<'t'>>);
    kind.add(*watchedSdk, CalledOnce, callback<Index, note<'o'>>);
    kind.add(*watchedSdk, MayCall, callback<Index, callAll>);
    watched[Index].endsItself = true;
    kind.add(*watchedSdk, MayUnregister, callback<Index, endItself>);
    watched[Index].isSlow = true;
    kind.add(*watchedSdk, NeverLate, callback<Index, beSlow>);
}

template <int Index>
void stopWatching()
{
    const Function &remove = kinds[Index].remove;
    isLeaving = true;
    remove(*watchedSdk, NeverLate, callback<Index, beSlow>);
    remove(*watchedSdk, MayUnregister, callback<Index, endItself>);
    remove(*watchedSdk, MayCall, callback<Index, callAll>);
    remove(*watchedSdk, CalledOnce, callback<Index, note<'o'>>);
    // Twice, where registrations are counted.
    remove(*watchedSdk, CalledOnce, callback<Index, note<'t'>>);
    remove(*watchedSdk, CalledOnce, callback<Index, note<'t'>>);
}

} // namespace

namespace CallbackRules {

void checkFunction(const Sdk &sdk, const char *function)
{
    for (const Kind &kind : kinds) {
        if (std::strcmp(kind.add.name, function) == 0)
            checkAdding(sdk, kind);
        if (std::strcmp(kind.remove.name, function) == 0)
            checkRemoving(sdk, kind, kinds[&kind == kinds ? 1 : 0]);
    }
}

const std::vector<const char *> &names()
{
    static const std::vector<const char *> names = {
        "a callback registered twice is called once",
        "callbacks come alone, outside calls, without data",
        "a callback may call every function",
        "a callback may unregister itself",
        "no callback once unregistering has returned",
    };
    return names;
}

void watch(const Sdk &sdk, double seconds)
{
    const int64_t end = now() + static_cast<int64_t>(1000 * seconds);
    watchedSdk = &sdk;
    startWatching<0>();
    startWatching<1>();
    AllCallers callers(sdk, CalledAlone, false);
    while (now() < end) {
        callers.runNext();
        interrupt<0>();
        interrupt<1>();
        sleepFor(2);
    }
    stopWatching<0>();
    stopWatching<1>();
    hasEnded = true;
    sleepFor(200);
    for (Watched &kind : watched)
        compare(kind);
    for (size_t rule = 0; rule < names().size(); ++rule) {
        if (counts[rule] > 0)
            report().setResult(static_cast<int>(rule), "seen %d times", counts[rule].load());
    }
}

} // namespace CallbackRules
