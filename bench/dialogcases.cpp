// SPDX-License-Identifier: MIT
#include "comparison.h"

#include "mixeddialog.h"

#include <zelgui/zelgui.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QVBoxLayout>

namespace bench {

namespace {

/// Whatever the toolkit has put off is not to be counted for what comes next.
void settle()
{
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

const char *const kNameLimit = "an object's name; see \"both with names\"";

/// The dialog of one side, in one of the stages of its life.
struct Life
{
    std::unique_ptr<QDialog> dialog;
    QDialog *(*create)();

    void end()
    {
        dialog.reset();
        settle();
    }
    void begin()
    {
        end();
        dialog.reset(create());
    }
};

using Stage = std::function<Side(const std::shared_ptr<Life> &)>;

Case stage(const char *name, Goal goal, const Stage &side, QDialog *(*createBare)() = createFullBareDialog)
{
    const auto make = [side, createBare](int) {
        mainWindow();
        const auto library = std::make_shared<Life>(Life{nullptr, createLibraryDialog});
        const auto bare = std::make_shared<Life>(Life{nullptr, createBare});
        return Comparison{side(library), side(bare)};
    };
    return {name, goal, {0}, 1, make};
}

constexpr int kWidgets = 1000;

void addLibraryLabel(int dialog)
{
    ZelGUILabelAdd(dialog, 100, 100, "A label");
}

void addLibraryField(int dialog)
{
    ZelGUITextFieldAdd(dialog, 100, 100, 1000, 130, nullptr);
}

void addBareField(QWidget *parent)
{
    auto *const field = new QLineEdit(parent);
    field->move(9, 18);
    field->setFixedSize(90, 23);
    field->setFocusPolicy(Qt::StrongFocus);
    QObject::connect(field, &QLineEdit::editingFinished, parent, &QWidget::hide);
}

void nameLast(QWidget *parent)
{
    parent->children().last()->setObjectName(QString::number(10000 + parent->children().size()));
}

void addBareLabel(QWidget *parent)
{
    auto *const label = new QLabel(QString::fromUtf8("A label"), parent);
    label->move(9, 18);
    label->setFixedWidth(label->sizeHint().width());
}

/// The heap that a thousand widgets of one kind take.
Case memory(const char *name, void (*addLibrary)(int dialog), void (*addBare)(QWidget *parent),
            const char *toolkitsLimit = nullptr)
{
    const auto side = [](const auto &add) {
        const auto dialog = std::make_shared<std::unique_ptr<Dialog>>();
        return Side{[dialog] {
                        dialog->reset();
                        settle();
                        dialog->reset(new Dialog);
                    },
                    [dialog, add] {
                        for (int i = 0; i < kWidgets; ++i)
                            add((*dialog)->id());
                    }};
    };
    const auto make = [=](int) {
        return Comparison{side(addLibrary), side([addBare](int id) { addBare(object<QWidget>(id)); })};
    };
    return {name, {Goal::Difference, 150}, {0}, kWidgets, make, Meter::Heap, toolkitsLimit};
}

/// Labels that were added to a visible dialog with a menu bar, one after the other.
Case showingUnderMenuBar()
{
    const auto make = [](int count) {
        const auto dialog = std::make_shared<Dialog>(true);
        ZelGUIMenuBarAdd(dialog->id());
        const auto bare = std::make_shared<QDialog>(mainWindow());
        auto *const layout = new QVBoxLayout(bare.get());
        layout->setSizeConstraint(QLayout::SetNoConstraint);
        layout->setMenuBar(new QMenuBar);
        bare->show();
        // Away from the mouse, below which the toolkit looks for the label each time.
        object<QWidget>(dialog->id())->move(1000, 1000);
        bare->move(1000, 1000);
        const auto ids = std::make_shared<std::vector<int>>();
        const auto labels = std::make_shared<std::vector<QLabel *>>();
        for (int i = 0; i < count; ++i) {
            ids->push_back(ZelGUILabelAdd(dialog->id(), 100, 100, "A label"));
            addBareLabel(bare.get());
            labels->push_back(static_cast<QLabel *>(bare->children().last()));
        }
        const auto hideAll = [=] {
            for (const int id : *ids)
                ZelGUISetVisibility(id, 0);
            for (QLabel *const label : *labels)
                label->hide();
            settle();
        };
        const auto library = [dialog, ids] {
            for (const int id : *ids)
                ZelGUISetVisibility(id, 1);
        };
        const auto toolkit = [bare, labels] {
            for (QLabel *const label : *labels) {
                // As it does by itself where there is no menu bar.
                label->adjustSize();
                label->show();
            }
        };
        return Comparison{{hideAll, library}, {hideAll, toolkit}};
    };
    return {"labels under a menu bar: show one by one", {Goal::Ratio, 1.30}, {1000}, 1, make};
}

} // namespace

std::vector<Case> dialogCases()
{
    const auto create = [](const std::shared_ptr<Life> &life) {
        return Side{[life] { life->end(); }, [life] { life->dialog.reset(life->create()); }};
    };
    return {
        stage("dialog of 200 widgets: create", {Goal::Ratio, 1.05}, create),
        stage("dialog of 200 widgets: create, leanest bare", {Goal::None, 0}, create, createBareDialog),
        stage("dialog of 200 widgets: show until painted", {Goal::Ratio, 1.02},
              [](const std::shared_ptr<Life> &life) {
                  return Side{[life] { life->begin(); }, [life] { showUntilPainted(*life->dialog); }};
              }),
        stage("dialog of 200 widgets: destroy", {Goal::Ratio, 1.05},
              [](const std::shared_ptr<Life> &life) {
                  return Side{[life] {
                                  life->begin();
                                  showUntilPainted(*life->dialog);
                              },
                              [life] { life->dialog.reset(); }};
              }),
        showingUnderMenuBar(),
        memory("memory of a label", addLibraryLabel, addBareLabel, kNameLimit),
        memory("memory of a text field", addLibraryField, addBareField, kNameLimit),
        // The name, which tells the host the identifier, takes more than all the rest.
        memory("memory of a label, both with names", addLibraryLabel,
               [](QWidget *parent) {
                   addBareLabel(parent);
                   nameLast(parent);
               }),
        memory("memory of a text field, both with names", addLibraryField,
               [](QWidget *parent) {
                   addBareField(parent);
                   nameLast(parent);
               }),
    };
}

} // namespace bench
