// SPDX-License-Identifier: MIT
#ifndef TESTS_MODELS_TEXTGENERATOR_H
#define TESTS_MODELS_TEXTGENERATOR_H

#include <zvsdkbase/zelutil.h>

#include <QString>

#include <initializer_list>
#include <random>
#include <vector>

/// Texts as users type them into fields, right and nearly right. The same seed gives the same texts everywhere: the
/// standard library's distributions would not.
class TextGenerator
{
public:
    explicit TextGenerator(quint64 seed) : m_engine(seed) {}

    /// For an index set; follows the grammar, then some of them are spoilt at a place or two.
    QString setText();
    /// For an integer or an MX expression, likewise.
    QString integerText();
    /// Ascending, each once.
    std::vector<LgIndex> members();
    /// Mostly small, some of them at the ends of 32 and 64 bits.
    LgIndex integer();

    /// False half of the time, else any byte that stands for true.
    ZelBoolean boolean() { return static_cast<ZelBoolean>(oneIn(2) ? 0 : 1 + below(255)); }

    bool oneIn(unsigned count) { return below(count) == 0; }

private:
    quint64 below(quint64 limit) { return m_engine() % limit; }
    QString oneOf(std::initializer_list<const char *> choices);
    QString digits();
    QString blanks();
    QString range();
    void spoil(QString &text, const char *characters);

    std::mt19937_64 m_engine;
};

#endif
