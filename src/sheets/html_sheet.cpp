#include "sheets/html_sheet.h"

#include "sheets/sheet_content.h"
#include "text/format.h"
#include "text/search.h"
#include "text/utf8.h"

namespace veld {

namespace {

// A page for A4 and Letter alike: no width is fixed, words longer than their place are broken, wide tables scroll on a
// phone, small blocks stay on one page.
constexpr std::string_view kStyle = R"(
:root { --ink: #16325c; --rule: #c9dcec; --label: #4a4a4a; }
* { box-sizing: border-box; }
body { margin: 0 auto; padding: 1rem; max-width: 52rem; background: #fff; color: var(--ink);
  font: 0.95rem/1.5 "Liberation Sans", Arial, Helvetica, sans-serif; overflow-wrap: anywhere; }
h1 { margin: 0; font-size: 1.7rem; line-height: 1.2; color: #111; }
h2 { margin: 1.4rem 0 0.3rem; padding-bottom: 0.1rem; border-bottom: 2px solid var(--ink);
  font-size: 1.1rem; color: #111; }
h3 { margin: 0.8rem 0 0.2rem; font-size: 0.95rem; color: #111; }
h2, h3, caption { break-after: avoid; }
p { margin: 0.2rem 0; }
dl { margin: 0; display: grid; column-gap: 1.2rem;
  grid-template-columns: repeat(auto-fill, minmax(min(14rem, 100%), 1fr)); }
dl.long { grid-template-columns: 1fr; }
dl div { display: flex; gap: 0.5rem; border-bottom: 1px solid var(--rule); break-inside: avoid; }
dt { color: var(--label); flex: none; max-width: 60%; }
dd { margin: 0; font-weight: 600; min-width: 0; }
ul { margin: 0; padding: 0; list-style: none; columns: 14rem; column-gap: 1.2rem; }
ul.wide { columns: 1; }
li { border-bottom: 1px solid var(--rule); break-inside: avoid; display: flex; gap: 0.5rem; }
li b { margin-left: auto; white-space: nowrap; }
.boxes { letter-spacing: 0.1em; color: var(--label); }
.scroll { overflow-x: auto; }
table { width: 100%; border-collapse: collapse; }
th, td { padding: 0.05rem 0.4rem; border-bottom: 1px solid var(--rule); text-align: center; white-space: nowrap; }
thead th { color: var(--label); font-weight: 400; }
tbody th { text-align: left; font-weight: 600; }
td.text, th.text { text-align: left; white-space: normal; overflow-wrap: break-word; }
tr > :first-child { padding-left: 0; }
tr { break-inside: avoid; }
thead { display: table-header-group; }
.notes { white-space: pre-wrap; }
.short { break-inside: avoid; }
@page { margin: 14mm; }
@media print {
  body { padding: 0; max-width: none; font-size: 9.5pt; line-height: 1.4; }
  .scroll { overflow: visible; }
  th, td { padding: 0 0.25rem; }
  tr > :first-child { padding-left: 0; }
}
)";

/// What typed text may stand in markup: nothing in it is markup any more.
std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char c : DisplayText(text)) {
    switch (c) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      case '"':
        escaped += "&quot;";
        break;
      case '\'':
        escaped += "&#39;";
        break;
      default:
        escaped += c;
    }
  }
  return escaped;
}

struct AbilityEffect {
  std::string_view Label;
  std::string Value;
  bool IsMarkup = false;
};

/// The page in the making. All texts that are given to it are escaped, but those that say that they are markup.
class Page {
 public:
  void Raw(std::string_view markup) { html_ += markup; }
  void Text(std::string_view text) { html_ += Escaped(text); }
  void Element(std::string_view tag, std::string_view text) {
    html_ += Format("<%s>", tag);
    Text(text);
    html_ += Format("</%s>\n", tag.substr(0, tag.find(' ')));
  }

  /// A section with its heading; a short one is kept on one page.
  void Open(std::string_view heading, bool isShort = false) {
    Raw(isShort ? "<section class=\"short\">\n" : "<section>\n");
    Element("h2", heading);
  }
  void Close() { Raw("</section>\n"); }

  void Fact(std::string_view label, std::string_view value) {
    Raw("<div><dt>");
    Text(label);
    Raw("</dt><dd>");
    Text(value);
    Raw("</dd></div>\n");
  }
  void Number(std::string_view label, std::int64_t value) { Fact(label, Format("%i", value)); }
  void OpenFacts(bool isLong = false) { Raw(isLong ? "<dl class=\"long\">\n" : "<dl>\n"); }
  void CloseFacts() { Raw("</dl>\n"); }
  void LongFacts(const std::vector<SheetFact>& facts) {
    if (facts.empty()) return;
    OpenFacts(true);
    for (const SheetFact& fact : facts) Fact(fact.Label, fact.Value);
    CloseFacts();
  }

  /// A table with its heads. The first column is one of texts; a column named so as well.
  void OpenTable(std::initializer_list<std::string_view> heads, std::string_view textColumn = {}) {
    Raw("<div class=\"scroll\"><table>\n<thead><tr>");
    for (const std::string_view& head : heads) {
      const bool isText = &head == heads.begin() || (!head.empty() && head == textColumn);
      Raw(isText ? "<th scope=\"col\" class=\"text\">" : "<th scope=\"col\">");
      Text(head);
      Raw("</th>");
    }
    Raw("</tr></thead>\n<tbody>\n");
  }
  void OpenRow(std::string_view head) {
    Raw("<tr><th scope=\"row\">");
    Text(head);
    Raw("</th>");
  }
  void Cell(std::string_view text) {
    Raw("<td>");
    Text(text);
    Raw("</td>");
  }
  void Cell(int number) { Cell(Format("%i", number)); }
  void CloseRow() { Raw("</tr>\n"); }
  void CloseTable() { Raw("</tbody>\n</table></div>\n"); }

  /// A line of a list, with a value at its end if it has one.
  void Item(std::string_view text, std::string_view value = {}) {
    Raw("<li><span>");
    Text(text);
    Raw("</span>");
    if (!value.empty()) Raw("<b>" + Escaped(value) + "</b>");
    Raw("</li>\n");
  }

  std::string Take() { return std::move(html_); }

 private:
  std::string html_;
};

void AddHead(Page& page, const CharacterSheet& sheet) {
  page.Raw(
      "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n");
  page.Element("title", OneLine(sheet.CharacterName));
  page.Raw("<style>");
  page.Raw(kStyle);
  page.Raw("</style>\n</head>\n<body>\n<header>\n");
  page.Element("h1", OneLine(sheet.CharacterName));
  page.Element("p", Format("%s %s %s", OneLine(sheet.RaceName), OneLine(sheet.ClassName), OneLine(sheet.LevelText)));
  page.Raw("</header>\n<main>\n");
}

/// Facts without a value have room for the player's own hand.
void AddWhoItIs(Page& page, const CharacterSheet& sheet) {
  page.Open("Character Information", true);
  page.OpenFacts();
  page.Fact("Name", OneLine(sheet.CharacterName));
  page.Fact("Player", OneLine(sheet.PlayerName));
  page.Fact("Race", OneLine(sheet.RaceName));
  page.Fact("Class", Format("%s %s", OneLine(sheet.ClassName), OneLine(sheet.LevelText)));
  page.Fact("Homeland", "");
  page.Fact("Alignment", OneLine(sheet.Alignment));
  page.Fact("Liege/Patron", "");
  page.Fact("Patron Gawd", "");
  page.Fact("Social Class", OneLine(sheet.SocialClassName));
  page.Fact("Family/Clan", "");
  page.Fact("Height", Format("%i inches", sheet.HeightInches));
  page.Fact("Weight", Format("%i lbs", sheet.WeightLbs));
  page.Number("Age", sheet.Age);
  page.Fact("Hair", OneLine(sheet.HairColor));
  page.Fact("Eyes", OneLine(sheet.EyeColor));
  page.Fact("Sex", OneLine(sheet.Gender));
  page.Fact("Birth Date", "");
  page.Fact("Handedness", OneLine(sheet.Handedness));
  page.Fact("Appearance", "");
  page.CloseFacts();
  page.Close();
}

void AddAbility(Page& page, std::string_view name, AbilityScore score, const std::vector<AbilityEffect>& effects) {
  page.OpenRow(name);
  page.Cell(Format("%i/%i", score.Whole, score.Percentile));
  page.Raw("<td class=\"text\">");
  bool isFirst = true;
  for (const AbilityEffect& effect : effects) {
    if (TrimRight(effect.Value).empty()) continue;
    if (!isFirst) page.Raw(", ");
    isFirst = false;
    page.Text(effect.Label);
    page.Raw(" <b>");
    page.Raw(effect.IsMarkup ? effect.Value : Escaped(effect.Value));
    page.Raw("</b>");
  }
  page.Raw("</td>");
  page.CloseRow();
}

void AddAbilities(Page& page, const CharacterSheet& s) {
  const auto text = [](std::string_view value) { return std::string(value); };
  const auto number = [](int value) { return Format("%i", value); };
  page.Open("Ability Scores", true);
  page.OpenTable({"Ability", "Score", "Effects"}, "Effects");
  AddAbility(page, "Strength", s.Strength,
             {{"to hit", text(s.StrengthHitAdj)},
              {"damage", text(s.StrengthDamageAdj)},
              {"weight allowance", number(s.WeightAllowanceLight)},
              {"open doors", text(s.OpenDoors)},
              {"bend bars", number(s.BendBars)}});
  AddAbility(page, "Dexterity", s.Dexterity,
             {{"defense", text(s.DefenseAdj)}, {"reaction", text(s.ReactionAdj)}, {"missile", text(s.MissileAdj)}});
  AddAbility(page, "Constitution", s.Constitution,
             {{"hit points", text(s.ConstitutionHPAdjText)},
              {"system shock", number(s.SystemShock)},
              {"resurrection survival", number(s.ResurrectionSurvival)},
              {"poison save", text(s.PoisonSave)},
              {"immune to disease/alcohol", text(s.ImmuneToDisease)},
              {"regenerate/heal", text(s.RegenHeal)}});
  AddAbility(page, "Intelligence", s.Intelligence,
             {{"languages", number(s.LanguageSlots)},
              {"spell level", text(s.MaxSpellLevelText)},
              {"learn ability", number(s.LearnAbility)},
              {"spells per level", text(s.MaxSpellsText)},
              {"illusion immunity", text(s.IllusionImmunity), true},
              {"spell mishap", number(s.SpellMishap)}});
  AddAbility(page, "Wisdom", s.Wisdom,
             {{"magical defense", text(s.MagicalDefenseAdj)},
              {"bonus spells", text(s.BonusSpells)},
              {"spell failure", number(s.SpellFailure)},
              {"spell immunity", text(s.SpellImmunity)},
              {"improve skill", number(s.ImproveSkillChance)}});
  AddAbility(page, "Charisma", s.Charisma,
             {{"henchmen", number(s.MaxHenchmen)},
              {"loyalty base", text(s.LoyaltyBase)},
              {"reaction", text(s.CharismaReactionAdj)},
              {"Comeliness", text(s.ComelinessMod)},
              {"Honor", text(s.HonorMod)}});
  AddAbility(page, "Comeliness", s.Comeliness, {});
  page.CloseTable();
  page.OpenFacts();
  page.Fact("Honor", Format("%i %s", s.Honor, s.HonorCategory));
  page.Fact("Fame", "");
  page.Number("Hit Points", s.HitPoints);
  page.CloseFacts();
  page.Close();
}

void AddClasses(Page& page, const SheetContent& content) {
  if (content.Classes.empty()) return;
  page.Open("Classes", true);
  page.OpenTable({"Class", "Level", "Experience", "Needed for next level"});
  for (const SheetClass& held : content.Classes) {
    page.OpenRow(held.Name);
    page.Cell(held.Level);
    page.Cell(Format("%.0f", held.Experience));
    page.Cell(held.NextLevel);
    page.CloseRow();
  }
  page.CloseTable();
  page.Close();
}

void AddSaves(Page& page, const CharacterSheet& s) {
  page.Open("Saving Throws", true);
  page.OpenFacts();
  page.Number("Paralyzation", s.SaveParalyzation[kBestSave]);
  page.Number("Poison", s.SavePoison[kBestSave]);
  page.Number("Death Magic", s.SaveDeathMagic[kBestSave]);
  page.Number("Petrification", s.SavePetrification[kBestSave]);
  page.Number("Polymorph", s.SavePolymorph[kBestSave]);
  page.Number("Rod", s.SaveRod[kBestSave]);
  page.Number("Staff", s.SaveRod[kBestSave]);  // one number serves rods and staves
  page.Number("Wand", s.SaveWand[kBestSave]);
  page.Number("QuellFrenzy", s.SaveQuellFrenzy[kBestSave]);
  page.Number("QuellLust", s.SaveQuellLust[kBestSave]);
  page.Number("Breath Weapon", s.SaveBreathWeapon[kBestSave]);
  page.Number("Apology", s.SaveApology[kBestSave]);
  page.Number("Spells", s.SaveSpells[kBestSave]);
  page.CloseFacts();
  page.Close();
}

void AddWeapons(Page& page, std::string_view heading, std::string_view speedHead,
                const std::vector<SheetWeapon>& weapons) {
  page.Open(heading);
  page.OpenTable(
      {"Weapon", "Hit", "Damage", speedHead, "Type", "T dam", "S dam", "M dam", "L dam", "H dam", "G dam", "BSL"});
  for (const SheetWeapon& held : weapons) {
    page.OpenRow(TrimRight(held.Weapon->Name));
    page.Cell(HitAdjustment(held));
    page.Cell(DamageAdjustment(held));
    page.Cell(held.Weapon->HitModifier);
    page.Cell(held.Weapon->DamageType);
    for (const std::string_view damage : held.Weapon->Damage) page.Cell(damage);
    page.Cell("");
    page.CloseRow();
  }
  page.CloseTable();
  page.Close();
}

void AddMovement(Page& page, const CharacterSheet& sheet, const SheetContent& content) {
  page.Open("Movement and Encumbrance", true);
  page.OpenTable({"", "Unencumbered", "Light", "Moderate", "Heavy", "Severe"});
  page.OpenRow("Encumbrance (lbs)");
  for (const int limit : content.EncumbranceLimits) page.Cell(limit);
  page.CloseRow();
  page.OpenRow("Movement");
  for (const int rate : {sheet.BaseMovement, sheet.MovementLight, sheet.MovementModerate, sheet.MovementHeavy, 1}) {
    page.Cell(rate);
  }
  page.CloseRow();
  page.CloseTable();
  page.OpenFacts();
  page.Fact("Carried", Format("%.2f lbs", sheet.CarriedWeightLbs));
  page.CloseFacts();
  page.Close();
}

void AddTattoos(Page& page, const SheetContent& content) {
  page.Open("Pixie Fairy Tattoos", true);
  page.Raw("<ul class=\"wide\">\n");
  for (const std::string_view tattoo : content.Tattoos) page.Item(tattoo);
  page.Raw("</ul>\n");
  page.Close();
}

void AddBackground(Page& page, std::string_view heading, const std::vector<SheetFact>& background) {
  if (background.empty()) return;
  page.Element("h3", heading);
  page.LongFacts(background);
}

void AddSpells(Page& page, const Game& game, const SheetContent& content) {
  page.Element("h3", "Spell Progression");
  page.OpenTable({"", "Lvl1", "Lvl2", "Lvl3", "Lvl4", "Lvl5", "Lvl6", "Lvl7", "Lvl8", "Lvl9"});
  page.OpenRow("Spells");
  for (const int slots : game.run.SpellsPerLevel) page.Cell(slots);
  page.CloseRow();
  page.CloseTable();
  page.Element("h3", "Spell Planner");
  if (content.Spells.empty()) return;
  page.Raw("<ul>\n");
  for (const std::string& spell : content.Spells) {
    page.Raw("<li><span class=\"boxes\" aria-hidden=\"true\">&#9675;&#9675;&#9675;&#9675;&#9675;</span><span>");
    page.Text(spell);
    page.Raw("</span></li>\n");
  }
  page.Raw("</ul>\n");
}

void AddCallings(Page& page, const Game& game, const SheetContent& content) {
  if (content.IsMage) {
    page.Open("Magic-User Information");
    AddBackground(page, "Magic-User Background", content.MageBackground);
    AddSpells(page, game, content);
    page.Close();
  }
  if (content.IsCleric) {
    page.Open("Cleric Information");
    AddBackground(page, "Cleric Background", content.ClericBackground);
    page.Close();
  }
  if (content.IsFighter) {
    page.Open("Fighter Information");
    AddBackground(page, "Fighter Background", content.FighterBackground);
    page.Close();
  }
}

void AddClassAbilities(Page& page, const SheetContent& content) {
  for (const SheetAbilityTable& table : content.ClassAbilities) {
    page.Open(table.Title, true);
    page.OpenTable({"Ability", "Base", "No Armor", "Elven Chain", "Studded Leather/Ring Mail/Padded"});
    for (const SheetPercents& row : table.Rows) {
      page.OpenRow(row.Name);
      for (const int value : row.Values) page.Cell(value);
      page.CloseRow();
    }
    page.CloseTable();
    page.Close();
  }
}

void AddQuirks(Page& page, const SheetContent& content) {
  if (content.Quirks.empty()) return;
  page.Open("Quirks and Flaws");
  page.Raw("<ul>\n");
  for (const SheetItem& quirk : content.Quirks) {
    page.Item(quirk.Name, quirk.Count == 1 ? std::string{} : Format("x%i", quirk.Count));
  }
  page.Raw("</ul>\n");
  page.Close();
}

void AddAccomplishments(Page& page, const SheetContent& content) {
  page.Open("Proficiencies, Talents & Skills");
  page.Element("h3", "Weapon Proficiencies");
  page.Raw("<ul>\n");
  for (const SheetWeapon& held : content.Proficiencies) page.Item(TrimRight(held.Weapon->Name), MarkName(held.Mark));
  for (const SheetFact& pick : content.Picks) page.Item(Format("%s: %s", pick.Label, pick.Value));
  page.Raw("</ul>\n");
  page.Element("h3", "Talents");
  page.Raw("<ul>\n");
  for (const SheetTalent& talent : content.Talents) page.Item(talent.Name, talent.Rating);
  page.Raw("</ul>\n");
  page.Element("h3", "Skills");
  page.Raw("<ul>\n");
  for (const SheetItem& skill : content.Skills) page.Item(skill.Name, Format("%i%%", skill.Count));
  page.Raw("</ul>\n");
  page.Close();
}

void AddInventory(Page& page, const SheetContent& content) {
  page.Open("Inventory");
  page.Element("h3", "Coins & Money");
  page.OpenFacts();
  for (const SheetCoin& coin : content.Coins) {
    if (coin.Count > 0) page.Number(coin.Name, coin.Count);
  }
  page.CloseFacts();
  page.LongFacts(content.Inheritance);
  for (const SheetGoods& goods : content.Goods) {
    page.Element("h3", goods.Heading);
    page.Raw("<ul>\n");
    for (const SheetGood& good : goods.Goods) {
      const std::string name = good.Quantity == 1 ? good.Name : Format("%s x%i", good.Name, good.Quantity);
      page.Item(name, Format("%.2f lbs", good.Weight));
    }
    page.Raw("</ul>\n");
  }
  page.Close();
}

void AddFamily(Page& page, const CharacterSheet& sheet, const SheetContent& content) {
  page.Open("Family Information");
  page.OpenFacts(true);
  page.Fact("Father", Format("%s, %s", OneLine(sheet.FatherStatus), OneLine(sheet.FatherQuality)));
  page.Fact("Mother", Format("%s, %s", OneLine(sheet.MotherStatus), OneLine(sheet.MotherQuality)));
  page.Fact("Step Parent", OneLine(sheet.StepParent));
  page.Fact("Birth Order", OneLine(sheet.BirthOrder));
  for (std::size_t i = 0; i < content.Siblings.size(); ++i) page.Fact(Format("Sibling %i", i + 1), content.Siblings[i]);
  page.CloseFacts();
  page.Close();
}

void AddNotes(Page& page, const CharacterSheet& sheet) {
  page.Open("Notes");
  page.Element("p class=\"notes\"", sheet.Notes);
  page.Close();
}

}  // namespace

std::string HtmlSheet(Game& game) {
  BringUpToDate(game);
  const CharacterSheet& sheet = game.sheet;
  const SheetContent content = GatherSheet(game);
  Page page;
  AddHead(page, sheet);
  AddWhoItIs(page, sheet);
  AddAbilities(page, sheet);
  AddClasses(page, content);
  AddSaves(page, sheet);
  AddWeapons(page, "Melee Weapons", "Spd", content.Melee);
  AddWeapons(page, "Missile Weapons", "ROF", content.Missile);
  AddMovement(page, sheet, content);
  if (sheet.RaceName == "Pixie Fairy") AddTattoos(page, content);
  AddCallings(page, game, content);
  AddClassAbilities(page, content);
  AddQuirks(page, content);
  AddAccomplishments(page, content);
  AddInventory(page, content);
  AddFamily(page, sheet, content);
  AddNotes(page, sheet);
  page.Raw("</main>\n</body>\n</html>\n");
  return page.Take();
}

}  // namespace veld
