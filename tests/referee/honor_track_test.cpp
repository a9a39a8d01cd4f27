#include "referee/honor_track.h"

#include <gtest/gtest.h>

#include <climits>

#include "referee/party.h"
#include "rules/honor_awards.h"
#include "store/recovery.h"
#include "support/game_test.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {
namespace {

using testing::FileLines;
using testing::FileText;
using testing::WriteText;

constexpr int kValue = 90, kHistory = 91, kMembers = 3021, kSearch = 3024, kFilter = 3115, kAwards = 3116;
constexpr int kSave = 3033, kLoad = 3034, kAddPC = 3043, kRemovePC = 3046, kApply = 3047, kDiscretionary = 3048,
              kAdjust = 3049, kAddFromFile = 3050;

class HonorTrackTest : public testing::GameTest<> {
 protected:
  void Track(std::function<void(Form&)> act) {
    platform.ExpectForm("HONORTRACK", [act = std::move(act)](Form& form) {
      act(form);
      form.PressCloseBox();
    });
    RunHonorTracking(*game);
  }

  void Add(const std::string& name, const char* alignment, int honor) {
    PartyMember member;
    member.Name = name;
    member.Alignment = alignment;
    member.Honor = honor;
    AddMember(game->party, member);
  }

  /// The next dialog gets texts in its fields and its default button pressed; one that stays open is closed.
  void Fill(const char* dialog, std::vector<std::pair<int, std::string>> texts, int alignment = -1) {
    platform.ExpectForm(dialog, [texts = std::move(texts), alignment](Form& form) {
      for (const auto& [id, text] : texts) form.Type(id, text);
      if (alignment >= 0) form.Choose(3115, alignment);
      form.PressDefault();
      if (!form.IsClosed()) form.PressCloseBox();
    });
  }

  testing::TestFolder folder;
  std::array<PartyMember, kPartyRows>& rows = game->party.Rows;
};

TEST_F(HonorTrackTest, MembersComeAndGoAndMoveTheHonorOfTheParty) {
  Track([&](Form& form) {
    EXPECT_EQ(form.Items(kMembers),
              std::vector<std::string>{"Name Party   Alignment LG    Honor= 0    Temporal Honor= 0"});
    Fill("GetPC", {{3000, "Ada"}, {3001, " 20x"}, {3002, "-3"}}, 5);
    form.Press(kAddPC);
    EXPECT_EQ(form.SelectedText(kMembers), "Name Ada   Alignment NE    Honor= 20    Temporal Honor= -3");
    Fill("GetPC", {{3000, "Brom"}, {3001, "-5"}});
    form.Press(kAddPC);
    EXPECT_EQ(rows[0].Honor, 7);
    Fill("GetPC", {{3000, "  "}});
    form.Press(kAddPC);
    EXPECT_TRUE(platform.Showed("needs a name"));
    Fill("GetPC", {{3000, "Party"}, {3001, "99"}, {3002, "4"}}, 8);
    form.Press(kAddPC);
    EXPECT_EQ(MemberLine(rows[0]), "Name Party   Alignment CE    Honor= 7    Temporal Honor= 4");
    EXPECT_EQ(game->party.Count, 2);
    form.Choose(kMembers, 1);
    form.Press(kRemovePC);
    EXPECT_EQ(form.SelectedText(kMembers), "Name Brom   Alignment LG    Honor= -5    Temporal Honor= 0");
    EXPECT_EQ(rows[0].Honor, -5);
    form.Press(kRemovePC);
    form.Press(kRemovePC);  // the party itself stays
    EXPECT_EQ(game->party.Count, 0);
    EXPECT_EQ(rows[0].Honor, -5);
    for (int i = 1; i <= kMostPartyMembers; ++i) Add(Format("%i", i), "N", INT_MAX);
    EXPECT_EQ(rows[0].Honor, INT_MAX);
    Fill("GetPC", {{3000, "One more"}});
    form.Press(kAddPC);
    EXPECT_TRUE(platform.Showed("at most 19 members"));
    EXPECT_EQ(form.Items(kMembers).size(), kPartyRows);
    form.Choose(kMembers, 19);
    form.Press(kRemovePC);
    EXPECT_TRUE(rows[19].Name.Empty());
  });
}

TEST_F(HonorTrackTest, AwardsAreFoundShownAppliedAndLogged) {
  Add("Ada", "CG", 10);
  Add("Odd", "??", 10);
  Track([&](Form& form) {
    EXPECT_EQ(form.Items(kAwards).size(), 122U);
    form.Press(kApply);  // no award is selected
    EXPECT_TRUE(form.Text(kHistory).empty());
    form.Choose(kFilter, 7);
    EXPECT_EQ(form.Items(kAwards).size(), 7U);
    form.Type(kSearch, "QUEST");
    EXPECT_EQ(form.Items(kAwards), (std::vector<std::string>{"Completing a quest", "Failing a quest"}));
    form.Choose(kMembers, 1);
    EXPECT_EQ(form.Text(kValue), "4 for Ada (CG)");
    form.Press(kApply);
    form.Press(kApply);
    EXPECT_EQ(form.Text(kHistory), "Ada was awarded 4 Points of Temporal Honor for: Completing a quest. New Total: 8");
    EXPECT_EQ(rows[1].TemporalHonor, 8);
    EXPECT_EQ(rows[0].TemporalHonor, 0);
    form.Choose(kMembers, 2);
    form.Press(kApply);
    EXPECT_EQ(rows[2].TemporalHonor, 0) << "an alignment that is not known earns nothing";
    form.Type(kSearch, "adventure");
    form.Choose(kMembers, 1);
    EXPECT_TRUE(Contains(form.Text(kValue), "2 for Ada (CG); the amount is asked for. Note: +2 per level."));
    platform.ExpectForm("GetName", [](Form& ask) {
      EXPECT_EQ(ask.Text(10),
                "NOTE: +2 per level. Current Value of this Honor Award is: 2. Please enter the amount to "
                "award below.");
      ask.Type(3000, "99999999999999999999 or so");
      ask.PressDefault();
    });
    form.Press(kApply);
    EXPECT_EQ(rows[1].TemporalHonor, INT_MAX);
    platform.ExpectForm("GetName", [](Form& ask) { ask.PressCloseBox(); });
    form.Press(kApply);
  });
  const auto log = FileLines("Honor.log");
  ASSERT_EQ(log.size(), 4U) << "an amount that is not given is no award";
  EXPECT_EQ(log[3], "Ada was awarded 2147483647 Points of Temporal Honor for: Completing an adventure.");
}

TEST_F(HonorTrackTest, TheRefereesOwnAwardsNeedAReason) {
  Add("Ada", "LG", 10);
  Track([&](Form& form) {
    form.Choose(kMembers, 1);
    Fill("ADJUSTTEMPORAL", {{3000, " "}, {3001, "5"}});
    form.Press(kDiscretionary);
    EXPECT_TRUE(platform.Showed("needs a reason"));
    EXPECT_EQ(rows[1].TemporalHonor, 0);
    Fill("ADJUSTTEMPORAL", {{3000, "a song"}, {3001, "5"}});
    form.Press(kDiscretionary);
    Fill("ADJUSTHONOR", {{3000, "a lie"}, {3001, "-4"}});
    form.Press(kAdjust);
    EXPECT_EQ(form.SelectedText(kMembers), "Name Ada   Alignment LG    Honor= 6    Temporal Honor= 5");
    EXPECT_EQ(rows[0].Honor, 10) << "the party's Honor moves when members come and go only";
  });
  EXPECT_EQ(FileLines("Honor.log"),
            (std::vector<std::string>{"Ada was awarded 5 Points of Temporal Honor for: a song. New Total: 5",
                                      "Ada was awarded -4 Points of Honor for: a lie. New Total: 6"}));
}

TEST_F(HonorTrackTest, PartyFilesAreReadWholeOrNotAtAll) {
  Add("Ada", "LG", 10);
  Add("Brom", "CE", 20);
  const std::string saved = EncodeParty(game->party);
  Track([&](Form& form) {
    form.Choose(kMembers, 2);
    platform.ExpectSavePath("heroes.vlp");
    form.ChooseMenuItem(kSave);
    EXPECT_EQ(form.Selection(kMembers), 0);
    form.Choose(kMembers, 1);
    form.Press(kRemovePC);
    WriteText("short.vlp", saved.substr(0, saved.size() - 1));
    for (const char* path : {"short.vlp", "missing.vlp", "."}) {
      platform.messages.clear();
      platform.ExpectOpenPath(path);
      form.ChooseMenuItem(kLoad);
      EXPECT_TRUE(platform.Showed("VELD: Problem Loading Party")) << path;
      EXPECT_EQ(game->party.Count, 1);
    }
    WriteText("long.vlp", FileText("heroes.vlp") + "and more");
    platform.ExpectOpenPath("long.vlp");
    form.ChooseMenuItem(kLoad);
    EXPECT_EQ(EncodeParty(game->party), saved);
    EXPECT_EQ(form.Items(kMembers).size(), 3U);
  });
  EXPECT_FALSE(SaveParty(*game, "heroes.vlp", {.DiskRoom = 4000}));
  EXPECT_TRUE(platform.Showed("VELD: Problem Saving Party"));
  EXPECT_EQ(FileText("heroes.vlp"), saved);
}

TEST_F(HonorTrackTest, ACharacterFileJoinsWithoutTouchingTheCharacterInMemory) {
  game->sheet.CharacterName = "Zoe";
  game->sheet.Alignment = "Chaotic-neutral  ";
  game->sheet.Honor = 33;
  WriteText("zoe.vlf", EncodeCharacter(*game));
  game->sheet.CharacterName = "In memory";
  const std::string before = EncodeCharacter(*game);
  Track([&](Form& form) {
    platform.ExpectOpenPath("zoe.vlf");
    Fill("GetPC", {});
    form.Press(kAddFromFile);
    EXPECT_EQ(form.SelectedText(kMembers), "Name Zoe   Alignment CN    Honor= 33    Temporal Honor= 0");
    WriteText("odd.vlf", "4.5");
    platform.ExpectOpenPath("odd.vlf");
    form.Press(kAddFromFile);
    EXPECT_TRUE(platform.Showed("This file can not be loaded."));
  });
  EXPECT_EQ(EncodeCharacter(*game), before);
}

TEST_F(HonorTrackTest, APartyIsRecovered) {
  Track([&](Form& form) {
    Fill("GetPC", {{3000, "Ada"}});
    form.Press(kAddPC);
    Fill("GetPC", {{3000, "Brom"}});
    form.Press(kAddPC);
  });
  testing::ScriptedPlatform other;
  const auto next = MakeGame(other);
  const auto copies = RecoveryCopies();
  ASSERT_EQ(copies.size(), 1U) << "one party has one copy";
  EXPECT_EQ(copies[0].Name, "Ada, Brom");
  ASSERT_TRUE(Recover(*next, copies[0]));
  EXPECT_EQ(EncodeParty(next->party), EncodeParty(game->party));
  KeepPartyCopy(*next);
  EXPECT_EQ(RecoveryCopies().size(), 1U) << "it goes on with its copy";
  next->sheet.CharacterName = "Zoe";
  for (int party = 0; party < kRecoveryCopies + 2; ++party) {
    next->partyCopy.clear();
    KeepPartyCopy(*next);
    KeepRecoveryCopy(*next);
  }
  EXPECT_EQ(RecoveryCopies().size(), kRecoveryCopies + 1U) << "five parties, and the character";
}

}  // namespace
}  // namespace veld
