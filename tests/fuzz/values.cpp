// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// The input is what the modem answers: values, and results of the SDK's functions.

#include "Fuzz.h"

#include "Functions.h"
#include "Modem.h"

#include <fuzzer/FuzzedDataProvider.h>

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
#define NAME(function) #function,
    static const std::vector<const char *> functions{SDK_FUNCTIONS(NAME)};
#undef NAME
    FuzzedDataProvider input(data, size);
    const auto one = [&input](const std::vector<const char *> &of) {
        return of[input.ConsumeIntegralInRange<size_t>(0, of.size() - 1)];
    };
    Session session;
    while (input.remaining_bytes() > 0) {
        switch (input.ConsumeIntegralInRange(0, 2)) {
        case 0:
            TestSupport::modem().setValue(one(numberKeys()),
                                          std::to_string(input.ConsumeIntegral<int32_t>()));
            break;
        case 1:
            TestSupport::modem().setValue(one(textKeys()), input.ConsumeRandomLengthString(300));
            break;
        default:
            SdkControl::setResult(one(functions), input.ConsumeIntegral<uint8_t>(),
                                  input.ConsumeBool() ? SdkControl::FillOutputs
                                                      : SdkControl::KeepOutputs,
                                  input.ConsumeIntegralInRange(0, 2));
        }
    }
    session.init();
    for (const QLabel *value : session.use()) {
        Session::require(!value->text().isEmpty(), "each value says something");
        Session::require(value->textFormat() == Qt::PlainText, "values are plain text");
    }
    return 0;
}
