// SPDX-License-Identifier: MIT
#include "comparison.h"

#include <zelgui/zelgui.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

#include <cstring>

namespace bench {

namespace {

constexpr int kKeys = 50;
constexpr Goal kNoGoal = {Goal::None, 0};
const char *const kLine = "A line of the report that an add-on writes, about eighty characters in length.\n";

struct Text
{
    explicit Text(bool isVisible) : dialog(isVisible)
    {
        id = ZelGUITextAdd(dialog.id(), 100, 100, 4000, 1000, 1, nullptr);
        widget = object<QPlainTextEdit>(id);
        widget->setVisible(isVisible);
    }
    Dialog dialog;
    int id;
    QPlainTextEdit *widget;
};

using Action = std::function<void(Text &, const QByteArray &)>;

/// On a text of a number of characters, or empty.
Case textCase(const char *name, Goal goal, const std::vector<int> &sizes, bool isVisible, bool isFilled,
              const Action &library, const Action &bare)
{
    const auto make = [=](int size) {
        const auto text = std::make_shared<Text>(isVisible);
        QByteArray lines;
        while (lines.size() < size)
            lines += kLine;
        const auto prepare = [=] {
            text->widget->setPlainText(isFilled ? QString::fromUtf8(lines) : QString());
            QApplication::processEvents();
        };
        return Comparison{{prepare, [=] { library(*text, lines); }}, {prepare, [=] { bare(*text, lines); }}};
    };
    return {name, goal, sizes, 1, make};
}

/// Appends the lines in as many calls as there are, or in pieces of a few characters without a line end.
template <typename Append>
void inPieces(const QByteArray &lines, int length, const Append &append)
{
    for (int at = 0; at + length <= lines.size(); at += length)
        append(lines.mid(at, length));
    QApplication::processEvents();
}

Case appending(const char *name, bool isVisible, const char *piece, const std::vector<int> &sizes)
{
    return textCase(
        name, {Goal::Ratio, 1.10}, sizes, isVisible, false,
        [=](Text &text, const QByteArray &lines) {
            inPieces(lines, int(std::strlen(kLine)),
                     [&](const QByteArray &) { ZelGUITextAppendString(text.id, piece); });
        },
        [=](Text &text, const QByteArray &lines) {
            inPieces(lines, int(std::strlen(kLine)), [&](const QByteArray &) {
                text.widget->moveCursor(QTextCursor::End);
                text.widget->insertPlainText(QString::fromUtf8(piece));
            });
        });
}

IndexSet everyOther(int count)
{
    IndexSet set = ZelUtilSetAlloc(0);
    ZelUtilSetAddRange(set, 1, LgIndex{2} * count, 2, 0);
    return set;
}

/// A set whose members stand apart, in the text of a field; what the toolkit does with a text as long is all that a
/// bare program has to do.
Case writingSet()
{
    const auto make = [](int members) {
        const auto dialog = std::make_shared<Dialog>();
        const int id = ZelGUITextFieldAdd(dialog->id(), 100, 100, 2000, 130, nullptr);
        auto *const field = object<QLineEdit>(id);
        const std::shared_ptr<IndexSet_s> set(everyOther(members), [](IndexSet gone) { ZelUtilSetDealloc(&gone); });
        const auto bare = [=, keep = dialog] {
            QString text;
            for (LgIndex member = ZelUtilSetGetNextMember(set.get(), 0); member != 0;
                 member = ZelUtilSetGetNextMember(set.get(), member))
                text += QString::number(member) + QLatin1Char(',');
            field->setText(text);
        };
        // A text that is there already would be set faster.
        const auto clear = [=] { field->clear(); };
        return Comparison{{clear, [=, keep = dialog] { ZelGUITextFieldSetSet(id, set.get(), 1); }}, {clear, bare}};
    };
    // A field holds no more than 32767 characters.
    return {"text field: write a set", {Goal::Ratio, 1.10}, {1000, 2000, 5000}, 1, make};
}

/// A text that names each member.
Case readingSet()
{
    const auto make = [](int members) {
        const auto dialog = std::make_shared<Dialog>();
        const int id = ZelGUITextFieldAdd(dialog->id(), 100, 100, 2000, 130, nullptr);
        auto *const field = object<QLineEdit>(id);
        QStringList named;
        for (int i = 0; i < members; ++i)
            named << QString::number(1 + 2 * i);
        field->setText(named.join(QLatin1Char(',')));
        const auto read = [=, keep = dialog] {
            IndexSet set = nullptr;
            ZelGUITextFieldGetSet(id, &set);
            ZelUtilSetDealloc(&set);
        };
        const auto bare = [=] {
            IndexSet set = ZelUtilSetAlloc(0);
            const QStringList typed = field->text().split(QLatin1Char(','));
            for (const QString &member : typed)
                ZelUtilSetAddMember(set, member.toLongLong(), 0);
            ZelUtilSetDealloc(&set);
        };
        return Comparison{{nullptr, read}, {nullptr, bare}};
    };
    return {"text field: read a set", {Goal::Ratio, 1.10}, {1000, 2000, 5000}, 1, make};
}

/// A key in a text whose changes are reported, beside widgets that have nothing to do with it.
Case reportedKey()
{
    const auto make = [](int others) {
        const auto crowd = std::make_shared<QWidget>();
        for (int i = 0; i < others; ++i)
            new QWidget(crowd.get());
        const auto text = std::make_shared<Text>(true);
        const auto accept = [](const char *) { return 1; };
        const int id = ZelGUITextAdd(text->dialog.id(), 100, 100, 4000, 1000, 0, accept);
        auto *const reported = object<QPlainTextEdit>(id);
        auto *const bare = new QPlainTextEdit(text->widget->window());
        bare->setGeometry(reported->geometry());
        bare->setFocusPolicy(Qt::StrongFocus);
        QObject::connect(bare, &QPlainTextEdit::textChanged, bare,
                         [bare, accept] { accept(bare->toPlainText().toUtf8().constData()); });
        reported->show();
        bare->show();
        const auto side = [text, crowd](QPlainTextEdit *edit) {
            return Side{[edit] {
                            const QSignalBlocker silence(edit);
                            edit->clear();
                        },
                        [text, crowd, edit] {
                            QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
                            for (int i = 0; i < kKeys; ++i)
                                QApplication::sendEvent(edit, &key);
                        }};
        };
        return Comparison{side(reported), side(bare)};
    };
    return {"multi-line text: reported key beside other widgets", {Goal::Ratio, 1.10}, {5000}, kKeys, make};
}

} // namespace

std::vector<Case> textCases()
{
    const std::vector<int> toTenMegabytes = {100000, 1000000, 10000000};
    return {
        reportedKey(),
        textCase(
            "text: set", {Goal::Ratio, 1.05}, toTenMegabytes, false, false,
            [](Text &text, const QByteArray &lines) { ZelGUITextSetString(text.id, lines.constData()); },
            [](Text &text, const QByteArray &lines) { text.widget->setPlainText(QString::fromUtf8(lines)); }),
        textCase(
            "text: read", {Goal::Ratio, 1.10}, toTenMegabytes, false, true,
            [](Text &text, const QByteArray &) {
                char *copy = ZelGUITextGetString(text.id);
                ZelUtilStringDealloc(&copy);
            },
            [](Text &text, const QByteArray &) {
                const QByteArray utf8 = text.widget->toPlainText().toUtf8();
                char *copy = ZelUtilStringAlloc(std::size_t(utf8.size()) + 1, "text");
                std::memcpy(copy, utf8.constData(), std::size_t(utf8.size()) + 1);
                ZelUtilStringDealloc(&copy);
            }),
        // A line for 79 characters: 7,900,000 are 100,000 calls.
        appending("text: append lines", false, kLine, {79000, 790000, 7900000}),
        appending("visible text: append lines", true, kLine, {79000, 790000, 7900000}),
        appending("text: append to one line", false, "word ", {7900, 79000}),
        appending("visible text: append to one line", true, "word ", {7900, 79000}),
        writingSet(),
        readingSet(),
    };
}

} // namespace bench
