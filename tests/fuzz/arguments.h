// SPDX-License-Identifier: MIT
#ifndef TESTS_FUZZ_ARGUMENTS_H
#define TESTS_FUZZ_ARGUMENTS_H

#include "fuzz/fuzzinput.h"

#include <zelgui/zelgui.h>

#include <deque>
#include <string>
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

/// An identifier, or any number.
int anyInt(CallContext &context);

/// The arguments of one call, each made of the next bytes as its type says, and released behind the call.
class Arguments
{
public:
    explicit Arguments(CallContext &context) : m_context(context), m_input(context.input) {}
    ~Arguments();
    Arguments(const Arguments &) = delete;
    Arguments &operator=(const Arguments &) = delete;

    operator int() { return anyInt(m_context); }
    operator unsigned char() { return m_input.byte(); }
    operator double() { return m_input.number<double>(); }
    operator LgIndex() { return m_input.number<LgIndex>(); }
    operator ZelGUIVoidCallback() { return anyVoidCallback(m_input); }
    operator ZelGUIIntCallback() { return anyIntCallback(m_input); }
    operator ZelGUITextCallback() { return anyTextCallback(m_input); }
    operator const char *();
    operator IndexSet();
    operator StringList_s *();
    operator int *() { return orNull(&m_count); }
    operator double *() { return orNull(&m_double); }
    operator LgIndex *() { return orNull(&m_index); }
    operator ZelBoolean *() { return orNull(&m_boolean); }
    operator int **() { return orNull(&m_numbers); }
    operator IndexSet *() { return orNull(&m_set); }

private:
    template <typename T>
    T *orNull(T *output)
    {
        return m_input.byte() % 8 == 1 ? nullptr : output;
    }

    CallContext &m_context;
    FuzzInput &m_input;
    std::deque<std::string> m_texts;
    std::vector<IndexSet> m_sets;
    std::vector<StringList_s *> m_lists;
    // Where a function writes its answers.
    int m_count = 0;
    double m_double = 0;
    LgIndex m_index = 0;
    ZelBoolean m_boolean = 0;
    int *m_numbers = nullptr;
    IndexSet m_set = nullptr;
};

#endif
