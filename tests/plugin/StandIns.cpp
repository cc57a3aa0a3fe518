// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "StandIns.h"

#include "core/Change.h"
#include "core/CommonUtils.h"
#include "core/ExtendDialog.h"
#include "sdk/VeltDevice.h"

#include <dlfcn.h>
#include <new>

namespace {

int objects;
int firstMissing; ///< its number; 0 for none
int lastMissing;

bool hasMemory()
{
    ++objects;
    return objects < firstMissing || objects > lastMissing;
}

/// The function that a stand-in was put in front of.
template <typename Function>
Function *original(const char *symbol)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, symbol));
}

} // namespace

QMap<QString, QString> StandIns::hostTexts;
std::function<void(const QString &key)> StandIns::hostIsAsked = [](const QString &) {};
int StandIns::frameType;
QList<const QWidget *> StandIns::centred;
QString StandIns::messageBox;
QString StandIns::pinPresets;

void StandIns::reset()
{
    hostTexts.clear();
    centred.clear();
    hostIsAsked = [](const QString &) {};
    loseMemory(0, 0);
}

void StandIns::loseMemory(int first, int last)
{
    objects = 0;
    firstMissing = first;
    lastMissing = last;
}

int StandIns::objectCount()
{
    return objects;
}

QString Change::tr(const QString &key, const QString &context)
{
    static auto *const translate =
        original<QString(const QString &, const QString &)>("_ZN6Change2trERK7QStringS2_");
    StandIns::hostIsAsked(key);
    return StandIns::hostTexts.contains(key) ? StandIns::hostTexts[key] : translate(key, context);
}

void CommonUtils::MoveCentre(QDialog *dialog)
{
    StandIns::centred.append(dialog);
    original<void(QDialog *)>("_ZN11CommonUtils10MoveCentreEP7QDialog")(dialog);
}

#define BOX                                                                                        \
    "_ZN11CommonUtils11ShowMessageEN11QMessageBox4IconEP7QWidget7QStringS4_S4_S4_S4_b6QFlagsIN2"   \
    "Qt10WindowTypeEEPP7QDialogS4_b"
int CommonUtils::ShowMessage(QMessageBox::Icon icon, QWidget *parent, QString caption, QString text,
                             QString button1, QString button2, QString button3, bool modal,
                             Qt::WindowFlags flags, QDialog **box, QString details, bool centre)
{
    StandIns::messageBox =
        QString("icon %1, buttons \"%2\" \"%3\" \"%4\", modal %5, flags %6, %7, centre %8")
            .arg(icon)
            .arg(button1, button2, button3)
            .arg(modal)
            .arg(int(flags), 0, 16)
            .arg(box || !details.isNull() ? "details" : "no details")
            .arg(centre);
    return original<decltype(ShowMessage)>(BOX)(icon, parent, caption, text, button1, button2,
                                                button3, modal, flags, box, details, centre);
}

#define FRAME "_ZN12ExtendDialogC1EP7QWidget6QFlagsIN2Qt10WindowTypeEEi"
extern "C" void constructFrame(ExtendDialog *, QWidget *, int, int) __asm__(FRAME);
extern "C" void constructFrame(ExtendDialog *frame, QWidget *parent, int flags, int type)
{
    StandIns::frameType = type;
    original<decltype(constructFrame)>(FRAME)(frame, parent, flags, type);
}

VELT_ERROR VELT_DevSrv_GetPinStatus(int32_t which, int32_t *status, char *pinAttempts,
                                    char *pukAttempts, char *pinEnabled)
{
    StandIns::pinPresets =
        QString("%1 %2 %3 %4").arg(*status).arg(*pinAttempts).arg(*pukAttempts).arg(*pinEnabled);
    return original<decltype(VELT_DevSrv_GetPinStatus)>(__func__)(which, status, pinAttempts,
                                                                  pukAttempts, pinEnabled);
}

// Only the plug-in allocates in this way.
void *operator new(std::size_t size, const std::nothrow_t &) noexcept
{
    return hasMemory() ? ::operator new(size) : nullptr;
}

void *operator new[](std::size_t size, const std::nothrow_t &) noexcept
{
    return hasMemory() ? ::operator new[](size) : nullptr;
}
