// SPDX-License-Identifier: MIT
#ifndef TESTS_FUZZ_ARGUMENTS_H
#define TESTS_FUZZ_ARGUMENTS_H

#include "fuzz/fuzzinput.h"

#include <zelgui/zelgui.h>

#include <string>
#include <utility>
#include <vector>

/// What an input needs besides its bytes to become calls.
struct CallContext
{
    FuzzInput &input;
    /// Identifier of the input's first object: the same input names the same objects whenever it is run.
    int firstId;
};

/// What add-ons are called back with, by type; null now and then.
ZelGUIVoidCallback anyVoidCallback(FuzzInput &input);
ZelGUIIntCallback anyIntCallback(FuzzInput &input);
ZelGUITextCallback anyTextCallback(FuzzInput &input);

/// An argument of that type, made of bytes, and released behind the call.
template <typename T>
class DecodedArgument;

template <>
class DecodedArgument<int>
{
public:
    explicit DecodedArgument(CallContext &context)
    {
        constexpr int kObjects = 48;
        const std::uint8_t choice = context.input.byte();
        m_value = choice % 2 == 0 ? context.firstId + choice / 2 % kObjects : context.input.number<int>();
    }
    int value() const { return m_value; }

private:
    int m_value;
};

template <typename T>
class PlainArgument
{
public:
    explicit PlainArgument(T plain) : m_value(std::move(plain)) {}
    T value() const { return m_value; }

private:
    T m_value;
};

template <>
class DecodedArgument<unsigned char> : public PlainArgument<unsigned char>
{
public:
    explicit DecodedArgument(CallContext &context) : PlainArgument(context.input.byte()) {}
};

template <>
class DecodedArgument<double> : public PlainArgument<double>
{
public:
    explicit DecodedArgument(CallContext &context) : PlainArgument(context.input.number<double>()) {}
};

template <>
class DecodedArgument<LgIndex> : public PlainArgument<LgIndex>
{
public:
    explicit DecodedArgument(CallContext &context) : PlainArgument(context.input.number<LgIndex>()) {}
};

template <>
class DecodedArgument<ZelGUIVoidCallback> : public PlainArgument<ZelGUIVoidCallback>
{
public:
    explicit DecodedArgument(CallContext &context) : PlainArgument(anyVoidCallback(context.input)) {}
};

template <>
class DecodedArgument<ZelGUIIntCallback> : public PlainArgument<ZelGUIIntCallback>
{
public:
    explicit DecodedArgument(CallContext &context) : PlainArgument(anyIntCallback(context.input)) {}
};

template <>
class DecodedArgument<ZelGUITextCallback> : public PlainArgument<ZelGUITextCallback>
{
public:
    explicit DecodedArgument(CallContext &context) : PlainArgument(anyTextCallback(context.input)) {}
};

template <>
class DecodedArgument<const char *>
{
public:
    explicit DecodedArgument(CallContext &context) : m_text(context.input.text()), m_isNull(m_text == "null") {}
    const char *value() const { return m_isNull ? nullptr : m_text.c_str(); }

private:
    std::string m_text;
    bool m_isNull;
};

/// Where a function writes an answer that needs no release.
template <typename T>
class Output
{
public:
    explicit Output(CallContext &context) : m_isNull(context.input.byte() % 8 == 1) {}
    T *value() { return m_isNull ? nullptr : &m_value; }

private:
    bool m_isNull;
    T m_value = {};
};

template <>
class DecodedArgument<int *> : public Output<int>
{
    using Output::Output;
};

template <>
class DecodedArgument<double *> : public Output<double>
{
    using Output::Output;
};

template <>
class DecodedArgument<LgIndex *> : public Output<LgIndex>
{
    using Output::Output;
};

template <>
class DecodedArgument<ZelBoolean *> : public Output<ZelBoolean>
{
    using Output::Output;
};

template <>
class DecodedArgument<int **> : public Output<int *>
{
public:
    using Output::Output;
    ~DecodedArgument()
    {
        if (int **const answer = value())
            ZelUtilStringDealloc(reinterpret_cast<char **>(answer));
    }
};

template <>
class DecodedArgument<IndexSet *> : public Output<IndexSet>
{
public:
    using Output::Output;
    ~DecodedArgument()
    {
        if (IndexSet *const answer = value())
            ZelUtilSetDealloc(answer);
    }
};

template <>
class DecodedArgument<IndexSet>
{
public:
    explicit DecodedArgument(CallContext &context);
    ~DecodedArgument() { ZelUtilSetDealloc(&m_set); }
    IndexSet value() const { return m_set; }

private:
    IndexSet m_set = nullptr;
};

template <>
class DecodedArgument<StringList_s *>
{
public:
    explicit DecodedArgument(CallContext &context);
    ~DecodedArgument() { ZelUtilStringListDealloc(&m_list); }
    StringList_s *value() const { return m_list; }

private:
    StringList_s *m_list = nullptr;
};

/// Positions of a list with their count: two arguments that belong together.
struct Positions
{
    std::vector<int> all;
};

template <>
class DecodedArgument<Positions> : public PlainArgument<Positions>
{
public:
    explicit DecodedArgument(CallContext &context);
};

/// Size and pixels of a picture.
struct Picture
{
    int width = 0;
    int height = 0;
    std::vector<unsigned char> pixels;
};

template <>
class DecodedArgument<Picture> : public PlainArgument<Picture>
{
public:
    explicit DecodedArgument(CallContext &context);
};

#endif
