// SPDX-License-Identifier: MIT
// A stream of bytes as calls of any functions with any arguments, between what a user does; callbacks and modal dialogs
// go on with the same stream. With ZELGUI_FUZZ_TRACE in the environment, tells what it does.
#include "fuzz/fuzzhost.h"
#include "fuzz/fuzzinput.h"
#include "support/model.h"

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace {

void stepWithin(int count);

/// Arguments made of the next bytes.
class FuzzSource : public Source
{
public:
    FuzzSource(FuzzInput &input, int firstId) : m_input(input), m_firstId(firstId) {}

    bool isNull(const Parameter &parameter) override;
    /// An identifier, or any number. The same input names the same objects whenever it is run.
    int integer();
    int integer(const Parameter &parameter) override;
    unsigned char byte() override { return m_input.byte(); }
    double number() override { return m_input.number<double>(); }
    LgIndex index() override { return m_input.number<LgIndex>(); }
    std::string text(const Parameter &) override { return m_text; }
    std::vector<int> positions(const Parameter &) override;
    std::vector<std::pair<LgIndex, LgIndex>> runs(const Parameter &) override;
    std::vector<std::string> texts(const Parameter &) override;
    ZelGUIVoidCallback voidCallback() override;
    ZelGUIIntCallback intCallback() override;
    ZelGUITextCallback textCallback() override;

private:
    FuzzInput &m_input;
    const int m_firstId;
    /// What was read to know whether it is null.
    std::string m_text;
    std::size_t m_count = 0;
};

/// What an input is at.
struct Course
{
    FuzzInput input;
    FuzzSource source;
    Model model;
};

Course *current = nullptr;
int depth = 0;

void trace(const char *what, const char *detail = "")
{
    static const bool isTraced = qEnvironmentVariableIsSet("ZELGUI_FUZZ_TRACE");
    if (isTraced)
        std::printf("%*s%s%s\n", depth * 2, "", what, detail);
}

QWidget *visibleWidget(Course &course)
{
    auto *const widget = FuzzHost::object<QWidget>(course.source.integer());
    return widget && widget->isVisible() ? widget : nullptr;
}

void pressKey(Course &course)
{
    static const int keys[] = {Qt::Key_Return, Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Space, Qt::Key_Up, Qt::Key_Down,
                               Qt::Key_PageUp, Qt::Key_Escape, Qt::Key_End,     Qt::Key_F4,    Qt::Key_5,  Qt::Key_M};
    QWidget *const widget = QApplication::focusWidget();
    const int key = keys[course.input.byte() % std::size(keys)];
    const bool isWithControl = course.input.byte() % 8 == 1;
    if (widget && widget->isVisible())
        QTest::keyClick(widget, Qt::Key(key), isWithControl ? Qt::ControlModifier : Qt::NoModifier);
}

void click(Course &course)
{
    QWidget *const widget = visibleWidget(course);
    const QPoint place(course.input.byte(), course.input.byte() / 4);
    if (widget)
        QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, place);
}

void closeWindow(Course &course)
{
    if (QWidget *const widget = visibleWidget(course))
        widget->window()->close();
}

// The host may do that between calls; what happens within one has tests of its own.
void destroyDialog(Course &course)
{
    const int id = course.source.integer();
    auto *const dialog = FuzzHost::object<QDialog>(id);
    if (depth > 0 || !dialog)
        return;
    course.model.destroy(id);
    delete dialog;
}

void actAsUser(Course &course, unsigned choice)
{
    static const char *const details[] = {"presses a key", "clicks", "closes a window", "sees a dialog destroyed"};
    trace("the user ", choice < std::size(details) ? details[choice] : "waits");
    switch (choice) {
    case 0:
        pressKey(course);
        return;
    case 1:
        click(course);
        return;
    case 2:
        closeWindow(course);
        return;
    case 3:
        destroyDialog(course);
        return;
    default:
        QCoreApplication::processEvents();
    }
}

// A launch returns when its dialog is hidden, so something has to hide it.
void launch(Call &call)
{
    constexpr int kDeepest = 3;
    static int launches = 0;
    if (launches == kDeepest)
        return;
    ++launches;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [] {
        const QPointer<QWidget> modal(QApplication::activeModalWidget());
        if (!modal)
            return;
        stepWithin(3);
        if (modal)
            modal->hide();
    });
    timer.start(0);
    call.run();
    --launches;
}

/// In the order of their names, so that inputs outlive changes of the header's order.
const std::vector<const Function *> &sortedFunctions()
{
    static const auto sorted = [] {
        std::vector<const Function *> all;
        for (const Function &function : functions())
            all.push_back(&function);
        std::sort(all.begin(), all.end(),
                  [](const Function *a, const Function *b) { return std::strcmp(a->name, b->name) < 0; });
        return all;
    }();
    return sorted;
}

void step(Course &course)
{
    const std::size_t choice = course.input.byte();
    const auto &all = sortedFunctions();
    if (choice >= all.size()) {
        actAsUser(course, unsigned(choice - all.size()) % 6);
        return;
    }
    const Function &function = *all[choice];
    trace(function.name);
    Call call(function, course.source);
    const bool isLaunch = std::strcmp(function.name, "ZelGUIDialogLaunch") == 0;
    const std::string fault = course.model.faultOf(call, [&] { isLaunch ? launch(call) : void(call.run()); });
    FuzzHost::require(fault.empty(), fault.c_str());
}

// What a callback and a modal dialog's loop do.
void stepWithin(int count)
{
    constexpr int kDeepest = 6;
    if (!current || depth == kDeepest)
        return;
    ++depth;
    for (; count > 0 && !current->input.isAtEnd(); --count)
        step(*current);
    --depth;
}

bool FuzzSource::isNull(const Parameter &parameter)
{
    if (std::holds_alternative<const char *>(parameter.null)) {
        m_text = m_input.text();
        return m_text == "null";
    }
    const bool isSet = std::holds_alternative<IndexSet>(parameter.null);
    if (isSet || std::holds_alternative<StringList_s *>(parameter.null)) {
        m_count = m_input.byte() % 16;
        return m_count == 1;
    }
    const bool isOutput = parameter.kind == Kind::Output || std::holds_alternative<ZelBoolean *>(parameter.null);
    return isOutput && m_input.byte() % 8 == 1;
}

int FuzzSource::integer()
{
    constexpr int kObjects = 48;
    const std::uint8_t choice = m_input.byte();
    return choice % 2 == 0 ? m_firstId + choice / 2 % kObjects : m_input.number<int>();
}

int FuzzSource::integer(const Parameter &parameter)
{
    const bool isOfPicture = parameter.kind == Kind::Columns || parameter.kind == Kind::Rows;
    return isOfPicture ? m_input.number<int>() : integer();
}

std::vector<int> FuzzSource::positions(const Parameter &)
{
    std::vector<int> all(m_input.byte() % 16U);
    for (int &position : all)
        position = m_input.number<int>();
    return all;
}

std::vector<std::pair<LgIndex, LgIndex>> FuzzSource::runs(const Parameter &)
{
    std::vector<std::pair<LgIndex, LgIndex>> all(m_count);
    for (auto &[first, last] : all)
        first = last = m_input.number<LgIndex>();
    return all;
}

std::vector<std::string> FuzzSource::texts(const Parameter &)
{
    std::vector<std::string> all(m_count);
    for (std::string &text : all)
        text = m_input.text();
    return all;
}

ZelGUIVoidCallback FuzzSource::voidCallback()
{
    static const ZelGUIVoidCallback all[] = {[] {}, nullptr, [] { stepWithin(1); }, [] { stepWithin(3); }};
    return all[m_input.byte() % std::size(all)];
}

ZelGUIIntCallback FuzzSource::intCallback()
{
    static const ZelGUIIntCallback all[] = {[](const int *value) { trace("reported ", QByteArray::number(*value)); },
                                            nullptr, [](const int *value) { stepWithin(*value % 2 + 1); }};
    return all[m_input.byte() % std::size(all)];
}

ZelGUITextCallback FuzzSource::textCallback()
{
    static const ZelGUITextCallback all[] = {[](const char *text) { return int(std::strlen(text) % 2); }, nullptr,
                                             [](const char *text) {
                                                 stepWithin(1);
                                                 return int(std::strlen(text) % 2);
                                             }};
    return all[m_input.byte() % std::size(all)];
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const FuzzDialog dialog;
    Course course = {{data, size}, {course.input, dialog.id()}, Model([] { return true; }, dialog.id())};
    course.model.add(ObjectType::Dialog, ZELGUI_MAIN_WINDOW);
    current = &course;
    while (!course.input.isAtEnd())
        step(course);
    current = nullptr;
    return 0;
}
