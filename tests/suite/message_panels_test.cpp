// The four panels in which the suite speaks to the child, and the About panel.
#include "feedback/message_panels.h"
#include "feedback/névjegy.h"
#include "tests/suite/suite_fixture.h"

namespace cserko {
namespace {

class MessageTest : public SuiteTest {
 protected:
  MessageTest() {
    put_words({u"alma", u"körte"});
    start();
  }
  szövegüzenet& text_panel(TextView text) {
    auto& panel = load<szövegüzenet>();
    panel.szöveg.set_caption(text);
    return panel;
  }
  void expect_none_loaded() {
    EXPECT_FALSE(session().loaded<szövegüzenet>());
    EXPECT_FALSE(session().loaded<üzenet>());
    EXPECT_FALSE(session().loaded<frm_szövegüzenet>());
    EXPECT_FALSE(session().loaded<frm_üzenet>());
  }
  static double space(const szövegüzenet& panel) { return panel.Command1.Top - panel.szöveg.Top - 60; }
  double height_at(const szövegüzenet& panel, double size, double width) {
    Font font = panel.szöveg.Font;
    font.size = size;
    return machine.measure_wrapped(font, panel.szöveg.Caption, width).height;
  }
};

TEST_F(MessageTest, ThePanelsHaveTheirTitles) {
  EXPECT_EQ(utf8(load<szövegüzenet>().Caption), "Cserkó Üzenet");
  EXPECT_EQ(utf8(load<üzenet>().Caption), "Cserkó Üzenet");
  EXPECT_EQ(utf8(load<frm_szövegüzenet>().Caption), "Üzenet");
  EXPECT_EQ(utf8(load<frm_üzenet>().Caption), "Üzenet");
}

TEST_F(MessageTest, ThePanelsAreCentred) {
  const auto is_centred = [this](const Window& panel) {
    EXPECT_DOUBLE_EQ(panel.Left, (machine.screen_size().width - panel.Width) / 2) << utf8(panel.Name);
    EXPECT_DOUBLE_EQ(panel.Top, (machine.screen_size().height - panel.Height) / 2) << utf8(panel.Name);
  };
  is_centred(load<szövegüzenet>());
  is_centred(load<üzenet>());
  is_centred(load<frm_szövegüzenet>());
  is_centred(load<frm_üzenet>());
}

TEST_F(MessageTest, ThePanelsTakeTheirShareOfTheScreen) {
  expect_share_of_screen(load<szövegüzenet>(), 0.6);
  expect_share_of_screen(load<üzenet>(), 0.7);
  expect_share_of_screen(load<frm_szövegüzenet>(), 0.6);
  expect_share_of_screen(load<frm_üzenet>(), 0.9);
}

TEST_F(MessageTest, TheButtonsAreFitted) {
  expect_fitted(load<szövegüzenet>().Command1, 3);
  expect_fitted(load<üzenet>().Command1, 3);
  expect_fitted(load<frm_szövegüzenet>().cmd_ok);
  expect_fitted(load<frm_üzenet>().cmd_ok);
  expect_fitted(load<Névjegy>().cmdOK, 3);
  expect_fitted(load<Névjegy>().cmdSysInfo, 3);
}

TEST_F(MessageTest, EveryPanelUnloadsItselfByItsButton) {
  hand::click(open<szövegüzenet>().Command1);
  hand::click(open<üzenet>().Command1);
  hand::click(open<frm_szövegüzenet>().cmd_ok);
  hand::click(open<frm_üzenet>().cmd_ok);
  expect_none_loaded();
}

TEST_F(MessageTest, EveryPanelClosesByItsCloseControl) {
  hand::close(open<szövegüzenet>());
  hand::close(open<üzenet>());
  hand::close(open<frm_szövegüzenet>());
  hand::close(open<frm_üzenet>());
  expect_none_loaded();
}

TEST_F(MessageTest, EveryPanelClosesByEnterAndByEscape) {
  for (const int code : {key::enter, key::escape}) {
    const auto closes = [&](Window& panel) {
      machine.advance(message_key_pause);
      hand::key(panel, code);
    };
    closes(open<szövegüzenet>());
    closes(open<üzenet>());
    closes(open<frm_szövegüzenet>());
    closes(open<frm_üzenet>());
    expect_none_loaded();
  }
}

TEST_F(MessageTest, EscapeClosesAPanelWhoseButtonHasNotTheFocus) {
  auto& panel = open<frm_üzenet>();
  panel.set_focus(nullptr);
  hand::key(panel, key::escape);
  auto& text = open<szövegüzenet>();
  text.set_focus(nullptr);
  hand::key(text, key::escape);
  expect_none_loaded();
}

TEST_F(MessageTest, TheButtonHasTheKeyboardAndNoPictureDoes) {
  EXPECT_EQ(open<szövegüzenet>().focus(), &session().window<szövegüzenet>().Command1);
  EXPECT_EQ(open<üzenet>().focus(), &session().window<üzenet>().Command1);
  EXPECT_EQ(open<frm_szövegüzenet>().focus(), &session().window<frm_szövegüzenet>().cmd_ok);
  EXPECT_EQ(open<frm_üzenet>().focus(), &session().window<frm_üzenet>().cmd_ok);
}

TEST_F(MessageTest, AHammeredSpaceBarClosesNoPanelUnread) {
  const auto closes_when_the_hand_rests = [this](Window& panel, const std::function<bool()>& loaded) {
    for (int blow = 0; blow < 20; ++blow) {
      hand::key(panel, blow % 2 == 0 ? key::space : key::enter);
      ASSERT_TRUE(loaded()) << "after " << blow << " blows";
      machine.advance(250);
    }
    machine.advance(message_key_pause);
    hand::key(panel, key::space);
    EXPECT_FALSE(loaded());
  };
  closes_when_the_hand_rests(open<szövegüzenet>(), [this] { return session().loaded<szövegüzenet>(); });
  closes_when_the_hand_rests(open<üzenet>(), [this] { return session().loaded<üzenet>(); });
  closes_when_the_hand_rests(open<frm_szövegüzenet>(), [this] { return session().loaded<frm_szövegüzenet>(); });
  closes_when_the_hand_rests(open<frm_üzenet>(), [this] { return session().loaded<frm_üzenet>(); });
}

// szövegüzenet

TEST_F(MessageTest, ATextGrowsToJustInsideItsSpace) {
  for (const TextView text :
       {u"Hurrá!", u"Ez egy hosszabb szöveg, amelyik több sorban fér csak el a panelen, és nagyobb."}) {
    auto& panel = text_panel(text);
    const double width = panel.szöveg.Width;
    const double size = panel.szöveg.Font.size;
    EXPECT_LT(panel.szöveg.Height, space(panel)) << utf8(text);
    const bool next_too_high = height_at(panel, size + 1, width) >= space(panel);
    Font next = panel.szöveg.Font;
    next.size = size + 1;
    const bool next_too_wide = machine.measure_wrapped(next, text, width).width > panel.inner_width() - 240;
    EXPECT_TRUE(next_too_high || next_too_wide) << utf8(text);
    EXPECT_DOUBLE_EQ(panel.szöveg.Height, height_at(panel, size, width));
  }
}

TEST_F(MessageTest, ATextStopsSixtyTwipsAboveTheButton) {
  auto& panel = load<szövegüzenet>();
  panel.szöveg.Caption = u"Hurrá!";
  const double height = height_at(panel, 20, panel.szöveg.Width);
  for (const double spare : {0.0, 1.0}) {
    panel.Command1.Top = panel.szöveg.Top + height + 60 + spare;
    panel.szöveg.Click();
    EXPECT_EQ(panel.szöveg.Font.size, spare > 0 ? 20 : 19) << "a text must be lower than its space";
  }
}

TEST_F(MessageTest, ATextStopsGrowingWhereItIsWiderThanTheWindowWithoutItsMargins) {
  auto& panel = text_panel(u"Hurrá!");
  const double size = panel.szöveg.Font.size;
  const double width = panel.szöveg.Width;
  panel.set_inner_size({width + 239, 10000});
  panel.szöveg.Click();
  EXPECT_EQ(panel.szöveg.Font.size, 7);
  panel.set_inner_size({width + 240, 10000});
  panel.szöveg.Click();
  EXPECT_EQ(panel.szöveg.Font.size, size);
}

TEST_F(MessageTest, TheFirstStepIsTakenBackToo) {
  // A text that is too large even at size 8 ends at size 7.
  auto& panel = text_panel(Text(20000, u'x'));
  EXPECT_EQ(panel.szöveg.Font.size, 7);
}

TEST_F(MessageTest, AClickOnTheTextFitsItAnew) {
  auto& panel = text_panel(u"Hurrá!");
  machine.show(panel);
  const double size = panel.szöveg.Font.size;
  panel.szöveg.Font.size = 8;
  hand::click(panel.szöveg);
  EXPECT_EQ(panel.szöveg.Font.size, size);
}

// üzenet

TEST_F(MessageTest, APictureMessageFitsTheCaptionThatItsCallerHasSetWhenItComesUp) {
  auto& panel = load<üzenet>();
  panel.üzenet_szöveg.set_caption(u"Kérlek, olvasd fel a kép nevét!");
  panel.üzenet_szöveg.Font.size = 1;
  then([&](Window&) {
    const double size = panel.üzenet_szöveg.Font.size;
    const double width = 31 * 10; // of a point, without the m of "Kérlek" there is none
    EXPECT_EQ(utf8(panel.üzenet_szöveg.Caption), "Kérlek, olvasd fel a kép nevét!");
    EXPECT_TRUE(width * size > 0.9 * panel.üzenet_szöveg.Width || 23 * size > 0.9 * panel.üzenet_szöveg.Height);
    EXPECT_TRUE(width * (size - 1) <= 0.9 * panel.üzenet_szöveg.Width &&
                23 * (size - 1) <= 0.9 * panel.üzenet_szöveg.Height);
    hand::click(panel.Command1);
  });
  machine.show_modal(panel);
}

TEST_F(MessageTest, AVeryLongPictureMessageEndsAtTheFirstSizeThatOverflows) {
  auto& panel = load<üzenet>();
  panel.üzenet_szöveg.set_caption(Text(5000, u'x'));
  machine.show(panel);
  EXPECT_EQ(panel.üzenet_szöveg.Font.size, 6);
}

// frm_szövegüzenet

TEST_F(MessageTest, TheTimedPanelHasTheWindowsBackgroundAndAFittedOk) {
  auto& panel = load<frm_szövegüzenet>();
  EXPECT_EQ(panel.pic_üzenet.BackColor, panel.BackColor);
  EXPECT_EQ(utf8(panel.cmd_ok.Caption), "Ok");
}

TEST_F(MessageTest, ATimedTextClosesAfterItsTime) {
  szöveges_üzenet(session(), u"Nyomtatok.", 40);
  EXPECT_EQ(machine.now(), 4000);
  EXPECT_FALSE(session().loaded<frm_szövegüzenet>());
}

TEST_F(MessageTest, ATimedTextShowsItsTextInThePictureBox) {
  then_in<frm_szövegüzenet>([](frm_szövegüzenet& panel) {
    const auto texts = drawn(panel.pic_üzenet).texts();
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_EQ(utf8(texts[0]), "Nyomtatok.");
    hand::click(panel.cmd_ok);
  });
  szöveges_üzenet(session(), u"Nyomtatok.", 40);
}

TEST_F(MessageTest, ATimedTextReturnsAtTheMomentItIsClosedByHand) {
  then_in<frm_szövegüzenet>([this](frm_szövegüzenet& panel) {
    machine.advance(1500);
    hand::click(panel.cmd_ok);
  });
  szöveges_üzenet(session(), u"Nyomtatok.", 150);
  EXPECT_EQ(machine.now(), 1500);
}

TEST_F(MessageTest, WithTimeZeroTheTextStaysUntilItsButtonIsPressed) {
  then_in<frm_szövegüzenet>([this](frm_szövegüzenet& panel) {
    machine.advance(3600000);
    EXPECT_TRUE(panel.visible());
    hand::click(panel.cmd_ok);
  });
  szöveges_üzenet(session(), u"Nyomtatok.", 0);
}

TEST_F(MessageTest, TheLongestTimeIs327Tenths) {
  szöveges_üzenet(session(), u"x", 327);
  EXPECT_EQ(machine.now(), 32700);
  EXPECT_THROW(szöveges_üzenet(session(), u"x", 328), InvalidValue);
}

TEST_F(MessageTest, AnEmptyTextIsReplaced) {
  then_in<frm_szövegüzenet>([](frm_szövegüzenet& panel) {
    EXPECT_EQ(utf8(panel.pic_üzenet.Tag), "Kéne írni ide valamit!");
    hand::click(panel.cmd_ok);
  });
  szöveges_üzenet(session(), {}, 0);
}

// About.

constexpr TextView tool_key = u"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
constexpr TextView location_key = u"SOFTWARE\\Microsoft\\Shared Tools Location";

class AboutTest : public MessageTest {
 protected:
  void registry(TextView key, TextView name, TextView value) { machine.registry[{Text(key), Text(name)}] = value; }
  std::string started() {
    hand::click(open<Névjegy>().cmdSysInfo);
    return machine.processes.empty() ? "(none)" : utf8(machine.processes[0].command_line);
  }
};

TEST_F(AboutTest, TellsNameVersionAndPurpose) {
  auto& about = load<Névjegy>();
  EXPECT_EQ(utf8(about.Caption), "Névjegy: Cserkó");
  EXPECT_EQ(utf8(about.lblTitle.Caption), "Cserkó");
  EXPECT_EQ(utf8(about.lblVersion.Caption), CSERKO_VERSION " verzió");
  EXPECT_EQ(utf8(about.lblDescription.Caption),
            "Játékos gyakorlatok dyslexia kezelésére, olvasás- és nyelvtanítás céljaira.");
  EXPECT_EQ(utf8(about.cmdSysInfo.Caption), "&System Info...");
}

TEST_F(AboutTest, OkUnloadsIt) {
  hand::click(open<Névjegy>().cmdOK);
  EXPECT_FALSE(session().loaded<Névjegy>());
}

TEST_F(AboutTest, StartsTheToolOfTheRegistry) {
  registry(tool_key, u"PATH", u"c:\\tools\\info.exe");
  EXPECT_EQ(started(), "c:\\tools\\info.exe");
  EXPECT_EQ(machine.processes[0].window, ProcessWindow::Normal);
}

TEST_F(AboutTest, ElseTheToolOfTheSharedFolderIfItIsThere) {
  registry(location_key, u"MSINFO", u"c:\\shared");
  machine.programs = {u"c:\\shared\\MSINFO32.EXE"};
  EXPECT_EQ(started(), "c:\\shared\\MSINFO32.EXE");
}

TEST_F(AboutTest, SaysSoWhereThereIsNoTool) {
  registry(location_key, u"MSINFO", u"c:\\shared");
  EXPECT_EQ(started(), "(none)");
  ASSERT_EQ(machine.messages.size(), 1U);
  EXPECT_EQ(utf8(machine.messages[0]), "System Information Is Unavailable At This Time");
}

TEST_F(AboutTest, SaysSoWhereThereIsNoRegistry) {
  EXPECT_EQ(started(), "(none)");
  EXPECT_EQ(machine.messages.size(), 1U);
}

} // namespace
} // namespace cserko
