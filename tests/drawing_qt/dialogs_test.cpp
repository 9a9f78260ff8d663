// The dialogs of the real machine, answered by somebody who looks at them.
#include "tests/qt/fixture.h"

#include <QColorDialog>
#include <QFile>
#include <QFileDialog>

namespace cserko::test {
namespace {

class DialogsOnTheMachine : public QtMachine {
 protected:
  DialogsOnTheMachine() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

  template<class Dialog> static void answer(const std::function<void(Dialog&)>& deed) {
    later([deed] {
      if (auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget())) {
        deed(*dialog);
      } else {
        answer<Dialog>(deed);
      }
    });
  }
  QString path(const QString& name) const { return folder.filePath(name); }

  NotingWindow window{*machine};
  QTemporaryDir folder;
};

TEST_F(DialogsOnTheMachine, AFileIsChosen) {
  QFile file(path("kép.bmp"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("abc");
  file.close();
  show(window);
  answer<QFileDialog>([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
    EXPECT_EQ(dialog.nameFilters(), (QStringList{"Minden fájl (*)", "Képfájlok (*.bmp)"}));
    EXPECT_EQ(dialog.selectedNameFilter(), "Képfájlok (*.bmp)");
    EXPECT_FALSE(machine->is_active(window)) << "the dialog has the focus";
    dialog.selectFile(path("kép.bmp"));
    static_cast<QDialog&>(dialog).accept();
  });
  const int before = window.activations;
  const auto chosen =
      machine->dialogs().open_file(window, {u"Minden fájl (*.*)|*.*|Képfájlok (*.bmp)|*.bmp", 2, {}, {}});
  ASSERT_TRUE(chosen);
  EXPECT_EQ(machine->dialogs().read(*chosen), "abc");
  EXPECT_TRUE(machine->is_active(window));
  EXPECT_EQ(window.activations, before + 1) << "activated again";
}

TEST_F(DialogsOnTheMachine, PuttingADialogAwayChoosesNothing) {
  show(window);
  answer<QFileDialog>([](QFileDialog& dialog) { static_cast<QDialog&>(dialog).reject(); });
  EXPECT_EQ(machine->dialogs().open_file(window, {u"Képfájl (*.bmp)|*.bmp", 1, {}, {}}), std::nullopt);
  answer<QColorDialog>([](QColorDialog& dialog) { static_cast<QDialog&>(dialog).reject(); });
  EXPECT_EQ(machine->dialogs().choose_color(window, {1, 2, 3}), std::nullopt);
}

TEST_F(DialogsOnTheMachine, ANameToSaveUnderGetsItsEnding) {
  show(window);
  answer<QFileDialog>([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
    dialog.setDirectory(folder.path());
    dialog.selectFile("rajz");
    static_cast<QDialog&>(dialog).accept();
  });
  const auto chosen = machine->dialogs().save_file(window, {u"Képfájl (*.bmp)|*.bmp", 1, u"c:\\", u".bmp"});
  ASSERT_TRUE(chosen);
  EXPECT_EQ(*chosen, Text(reinterpret_cast<const char16_t*>(path("rajz.bmp").utf16())));
  machine->dialogs().write(*chosen, "xyz");
  EXPECT_EQ(machine->dialogs().read(*chosen), "xyz");
}

TEST_F(DialogsOnTheMachine, AColourIsChosen) {
  show(window);
  answer<QColorDialog>([](QColorDialog& dialog) {
    EXPECT_EQ(dialog.currentColor(), QColor(1, 2, 3));
    dialog.setCurrentColor(QColor(40, 50, 60));
    static_cast<QDialog&>(dialog).accept();
  });
  EXPECT_EQ(machine->dialogs().choose_color(window, {1, 2, 3}), (Color{40, 50, 60}));
}

TEST_F(DialogsOnTheMachine, WhatCannotBeReadOrWrittenIsTold) {
  EXPECT_EQ(machine->dialogs().read(u"/nowhere/at/all.bmp"), std::nullopt);
  EXPECT_THROW(machine->dialogs().write(u"/nowhere/at/all.bmp", "x"), FileError);
}

} // namespace
} // namespace cserko::test
