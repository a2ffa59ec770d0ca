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
class Argument;

template <>
class Argument<int>
{
public:
    explicit Argument(CallContext &context)
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
class Argument<unsigned char> : public PlainArgument<unsigned char>
{
public:
    explicit Argument(CallContext &context) : PlainArgument(context.input.byte()) {}
};

template <>
class Argument<double> : public PlainArgument<double>
{
public:
    explicit Argument(CallContext &context) : PlainArgument(context.input.number<double>()) {}
};

template <>
class Argument<LgIndex> : public PlainArgument<LgIndex>
{
public:
    explicit Argument(CallContext &context) : PlainArgument(context.input.number<LgIndex>()) {}
};

template <>
class Argument<ZelGUIVoidCallback> : public PlainArgument<ZelGUIVoidCallback>
{
public:
    explicit Argument(CallContext &context) : PlainArgument(anyVoidCallback(context.input)) {}
};

template <>
class Argument<ZelGUIIntCallback> : public PlainArgument<ZelGUIIntCallback>
{
public:
    explicit Argument(CallContext &context) : PlainArgument(anyIntCallback(context.input)) {}
};

template <>
class Argument<ZelGUITextCallback> : public PlainArgument<ZelGUITextCallback>
{
public:
    explicit Argument(CallContext &context) : PlainArgument(anyTextCallback(context.input)) {}
};

template <>
class Argument<const char *>
{
public:
    explicit Argument(CallContext &context) : m_text(context.input.text()), m_isNull(m_text == "null") {}
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
class Argument<int *> : public Output<int>
{
    using Output::Output;
};

template <>
class Argument<double *> : public Output<double>
{
    using Output::Output;
};

template <>
class Argument<LgIndex *> : public Output<LgIndex>
{
    using Output::Output;
};

template <>
class Argument<ZelBoolean *> : public Output<ZelBoolean>
{
    using Output::Output;
};

template <>
class Argument<int **> : public Output<int *>
{
public:
    using Output::Output;
    ~Argument()
    {
        if (int **const answer = value())
            ZelUtilStringDealloc(reinterpret_cast<char **>(answer));
    }
};

template <>
class Argument<IndexSet *> : public Output<IndexSet>
{
public:
    using Output::Output;
    ~Argument()
    {
        if (IndexSet *const answer = value())
            ZelUtilSetDealloc(answer);
    }
};

template <>
class Argument<IndexSet>
{
public:
    explicit Argument(CallContext &context);
    ~Argument() { ZelUtilSetDealloc(&m_set); }
    IndexSet value() const { return m_set; }

private:
    IndexSet m_set = nullptr;
};

template <>
class Argument<StringList_s *>
{
public:
    explicit Argument(CallContext &context);
    ~Argument() { ZelUtilStringListDealloc(&m_list); }
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
class Argument<Positions> : public PlainArgument<Positions>
{
public:
    explicit Argument(CallContext &context);
};

/// Size and pixels of a picture.
struct Picture
{
    int width = 0;
    int height = 0;
    std::vector<unsigned char> pixels;
};

template <>
class Argument<Picture> : public PlainArgument<Picture>
{
public:
    explicit Argument(CallContext &context);
};

#endif
