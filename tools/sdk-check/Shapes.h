// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef SHAPES_H
#define SHAPES_H

#include "Functions.h"
#include "sdk/VeltDevice.h"
#include "sdk/VeltNetwork.h"
#include "sdk/VeltPhonebook.h"
#include "sdk/VeltSms.h"

#include <functional>
#include <vector>

/// The library under check: its functions, each null where the library lacks it.
struct Sdk
{
#define SDK_MEMBER(function) decltype(&::function) function;
    SDK_FUNCTIONS(SDK_MEMBER)
#undef SDK_MEMBER

    /// Returns false if the library cannot be loaded.
    bool load(const char *file);
    bool has(const char *function) const;

private:
    void *m_handle;
};

/// A part of an out-parameter.
struct Field
{
    const char *name;
    size_t offset;
    size_t size;
    size_t unit; ///< of a text the size of a character; 0 for a number
};

/// One argument of a function.
struct Argument
{
    enum Kind
    {
        Number,    ///< passed by value
        Result,    ///< passed by value: the number that the call before gave in its first argument
        EmptyText, ///< a text passed in
        Out
    };

    Kind kind;
    const char *name;
    /// For each call, the last for all that follow: the number, or the size of a text.
    std::vector<int32_t> values;
    size_t size;               ///< of a number or record
    std::vector<Field> fields; ///< of a record

    int32_t valueAt(size_t call) const;
    size_t sizeAt(size_t call) const;
    std::vector<Field> fieldsAt(size_t call) const;
};

/// An argument as it is passed.
struct Value
{
    int32_t number;
    void *address;

    operator int32_t() const { return number; }
    template <typename T>
    operator T *() const
    {
        return static_cast<T *>(address);
    }
};

/// How a function is called.
struct Shape
{
    const char *function;
    std::vector<Argument> arguments;
    std::function<VELT_ERROR(const Sdk &, const std::vector<Value> &)> call;

    size_t calls() const;
};

/// Those of all functions but the four that register and unregister callbacks.
const std::vector<Shape> &shapes();

#endif
