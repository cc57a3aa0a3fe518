// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// Functions of the SDK with one fault at a time, named by SDK_FAULT. What is not here comes from
// the libraries that this one is linked with.

#define SDK_LIBRARY
#include "sdk/VeltDevice.h"
#include "sdk/VeltNetwork.h"
#include "sdk/VeltSms.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace {

const std::string fault = std::getenv("SDK_FAULT");

void sleepFor(int milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

struct Registration
{
    int kind;
    VELT_DEVICE_CALLBACK callback;

    bool operator==(const Registration &other) const
    {
        return kind == other.kind && callback == other.callback;
    }
};

std::mutex mutex;
std::vector<Registration> registrations;

/// Without a lock and to a copy of the list, so that who unregisters meanwhile is still called.
void deliver(int event)
{
    std::unique_lock<std::mutex> lock(mutex);
    const std::vector<Registration> copy = registrations;
    if (fault.find("locks") != 0)
        lock.unlock();
    for (const Registration &registration : copy) {
        int data = 0;
        if (registration.kind == (event == VELT_EVENT_DEV_DEVICE_INIT_FINISH))
            registration.callback(event, fault == "hands out data" ? &data : nullptr);
    }
}

VELT_ERROR add(int kind, VELT_DEVICE_CALLBACK callback)
{
    const std::lock_guard<std::mutex> lock(mutex);
    const Registration added = {kind, callback};
    const bool isKnown =
        std::find(registrations.begin(), registrations.end(), added) != registrations.end();
    if (isKnown && fault == "refuses the second")
        return VELT_ERROR_FAILURE;
    if (!isKnown || fault == "counts registrations")
        registrations.push_back(added);
    return VELT_SUCCESS;
}

VELT_ERROR remove(int kind, VELT_DEVICE_CALLBACK callback)
{
    const std::lock_guard<std::mutex> lock(mutex);
    const auto found = std::find_if(
        registrations.begin(), registrations.end(), [&](const Registration &registration) {
            return registration.callback == callback &&
                   (registration.kind == kind || fault == "mixes kinds");
        });
    if (found == registrations.end())
        return fault == "removes anything" ? VELT_SUCCESS : VELT_ERROR_NOT_REGISTERED;
    if (fault == "keeps its callbacks")
        return VELT_SUCCESS;
    registrations.erase(found);
    return VELT_SUCCESS;
}

void raiseEvents()
{
    for (;; sleepFor(5)) {
        deliver(VELT_EVENT_DEV_ARRIVAL);
        deliver(VELT_EVENT_DEV_DEVICE_INIT_FINISH);
    }
}

const bool isStarted = [] {
    if (fault == "hangs when loaded")
        sleepFor(60000);
    if (fault == "crashes when loaded")
        std::abort();
    if (fault == "crashes in its thread")
        std::thread([] {
            sleepFor(200);
            std::abort();
        }).detach();
    const int threads = fault == "calls back inside"           ? 0
                        : fault == "calls back on two threads" ? 2
                                                               : 1;
    for (int thread = 0; thread < threads; ++thread)
        std::thread(raiseEvents).detach();
    return true;
}();

/// An address that nothing is at; read at run time, so that no compiler and no sanitizer knows it.
int *volatile nowhere = reinterpret_cast<int *>(64);

std::atomic<int> inside{0};

} // namespace

VELT_ERROR VELT_DevSrv_RegisterDevMgrCallback(VELT_DEVICE_CALLBACK callback)
{
    return add(0, callback);
}

VELT_ERROR VELT_DevSrv_RegisterDevInitEventCallback(VELT_DEVICE_CALLBACK callback)
{
    return add(1, callback);
}

VELT_ERROR VELT_DevSrv_UnRegisterDevMgrCallback(VELT_DEVICE_CALLBACK callback)
{
    return remove(0, callback);
}

VELT_ERROR VELT_DevSrv_UnRegisterDevInitEventCallback(VELT_DEVICE_CALLBACK callback)
{
    return remove(1, callback);
}

VELT_ERROR VELT_DevSrv_GetDevStatus(int32_t *status)
{
    if (fault == "calls back inside")
        deliver(VELT_EVENT_DEV_ARRIVAL);
    if (fault == "is slow")
        sleepFor(80);
    if (fault == "hangs")
        sleepFor(60000);
    if (fault == "locks everything")
        const std::lock_guard<std::mutex> lock(mutex);
    *status = VELT_DEV_STATUS_READY;
    return VELT_SUCCESS;
}

VELT_ERROR VELT_DevSrv_GetImeiInfo(char *imei)
{
    std::memset(imei, '1', VELT_SIZE_IMEI);
    if (fault == "writes past the end")
        imei[VELT_SIZE_IMEI] = 0;
    if (fault == "writes before")
        imei[-1] = 0;
    return VELT_SUCCESS;
}

VELT_ERROR VELT_DevSrv_GetSN(char *serialNumber)
{
    if (fault == "writes and fails")
        serialNumber[VELT_SIZE_SERIAL_NUMBER - 1] = 0;
    return VELT_ERROR_FAILURE;
}

VELT_ERROR VELT_DevSrv_GetDeviceName(char *name)
{
    if (fault == "ends no text")
        std::memcpy(name, "MODEL", 5); // a caller's zeros would end it
    else if (fault != "fills nothing")
        std::strcpy(name, "MODEL");
    return VELT_SUCCESS;
}

VELT_ERROR VELT_DevSrv_GetFirmwareVersion(VELT_VERSION_INFO *version)
{
    std::strcpy(version->firmware, "1.0");
    if (fault == "ends no text")
        version->hardware[0] = 'B';
    else if (fault != "fills one field")
        std::strcpy(version->hardware, "B");
    return VELT_SUCCESS;
}

VELT_ERROR VELT_DevSrv_GetVoltage(uint32_t *voltage)
{
    if (fault != "fills nothing")
        *voltage = 3900;
    return VELT_SUCCESS;
}

VELT_ERROR VELT_DevSrv_GetSimStatus(int32_t *status)
{
    if (fault == "crashes")
        *nowhere = 1;
    if (fault == "ends the process")
        std::_Exit(0);
    if (fault == "knows one thread only") {
        if (++inside > 1)
            std::abort();
        std::this_thread::yield();
        --inside;
    }
    *status = 1;
    return VELT_SUCCESS;
}

VELT_ERROR VELT_SMSSrv_GetSMSCentreNumber(int32_t *length, uint16_t *number, int32_t request)
{
    *length = 3;
    // Bytes taken for units.
    if (request != 0 && fault == "writes past the end")
        std::fill_n(number, VELT_SIZE_SMS_CENTRE, 0);
    if (request != 0 && fault == "ends no text")
        std::memcpy(number,
                    "+\0"
                    "4\0"
                    "4\0",
                    6);
    return VELT_SUCCESS;
}

VELT_ERROR VELT_NetSrv_GetIPAddress(const char *device, const char *, char *address, int32_t)
{
    if (fault == "changes its input")
        *const_cast<char *>(device) = 'x';
    if (fault == "writes past the end")
        std::fill_n(address, 64, 0);
    return VELT_ERROR_FAILURE;
}
