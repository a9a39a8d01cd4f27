#include "rules/honor_awards.h"

#include <algorithm>

#include "text/search.h"

namespace veld {

// clang-format off

constexpr std::array<std::string_view, kHonorAwardTables + 1> HonorAwardFilters = {
    "Unfiltered - Honor Point Awards",
    "RFC Table 4B: Honor Point Awards - Combat-related Actions",
    "RFC Table 4C: Honor Point Awards - Social Encounters",
    "RFC Table 4D: Honor Point Awards - Personal Achievements/Failures",
    "RFC Table 4E: Honor Point Awards - Class/Professional",
    "RFC Table 4F: Honor Point Awards - NPC and Player Related",
    "RFC Table 4G: Honor Point Awards - Clan/Group Related",
    "RFC Table 4H: Honor Point Awards - Action/Event: Party Related",
};

// Names and notes are spelled as the book spells them.
constexpr std::array<HonorAward, 122> HonorAwards = {{
    // table, note, LG  NG  CG  LN   N  CN  LE  NE  CE, name
    // RFC table 4B
    {1,  0, {  1,  1,  1,  1,  0, -1,  1, -1, -1}, "Allowing a disarmed opponent to pick up his weapon"},
    {1,  0, {  2,  1,  0,  2, -1, -2,  2, -2, -2}, "Allowing the enemy to draw first blood"},
    {1,  0, {  1,  0,  0,  1,  0,  0,  1,  0,  0}, "Allowing the enemy to remove their dead/wounded from the field"},
    {1,  0, { -1, -1,  0, -1,  1,  0, -1,  1,  1}, "Attacking an unarmed or obviously inferior opponent"},
    {1,  0, { -3, -3, -6, -3, -1, -6, -3,  0, -6}, "Being taken prisoner"},
    {1,  0, {  5,  5,  5,  5,  5,  5,  5,  5,  5}, "Capture a battle standard, flag or crest during combat"},
    {1,  0, { -2, -1,  0, -2, -1,  0, -2, -1,  0}, "Defeated by someone of a lower social class"},
    {1,  0, {  2,  1,  0,  2,  1,  0,  2,  1,  0}, "Defeating somone of a higher social class"},
    {1,  0, { -1, -1, -1,  0,  0,  0,  1,  1,  1}, "Delivering a death blow to a helpless opponent"},
    {1,  0, {  1,  1,  1,  1,  1,  1,  1,  1,  1}, "Delivering a critical hit"},
    {1,  9, { -1, -1,  0, -1,  1,  2,  0,  2,  3}, "Dirty Fighting"},
    {1,  5, {  5,  5,  5,  5,  5,  5,  5,  5,  5}, "Entering into mortal combat sans shield and armor"},
    {1,  0, {  1,  1,  1,  1,  1,  1,  1,  1,  1}, "Exercising your 'bragging rights' at a tavern or inn"},
    {1,  0, {  1,  1,  1,  1,  1,  1,  1,  1,  1}, "Fighting a 'worthy adversary' or battle-hardened adversary"},
    {1,  0, { -2, -2, -1, -2,  0, -1, -2,  0, -1}, "Fleeing a fight with an equal opponent"},
    {1,  0, { -1, -1,  0, -1,  1,  0, -1,  1,  0}, "Fleeing a fight with a superior opponent"},
    {1,  0, { -2, -2, -3, -2, -1, -3, -2, -1, -3}, "Fleeing a fight with a weaker opponent"},
    {1,  0, { -1, -1, -1, -1,  0,  1, -1,  0,  1}, "Fleeing a battle that's obviously going poorly"},
    {1,  0, { -2, -2, -2, -2, -1, -1, -2, -1, -1}, "Fleeing a battle that's still in question"},
    {1,  0, { -1,  0,  1,  0,  1,  2,  1,  2,  3}, "Gloating over a victory"},
    {1,  0, {  5,  5,  5,  5,  5,  5,  5,  5,  5}, "Heroic death"},
    {1,  8, {  3,  3,  3,  3,  3,  3,  3,  3,  3}, "Humiliating a diametrically opposed enemy"},
    {1,  0, {  1,  1,  1,  1,  1,  1,  1,  1,  1}, "Landing the killing blow on a superior opponent in a combined "
                                                   "attack"},
    {1,  0, { -1, -1, -1, -1, -1, -1, -1, -1, -1}, "Losing a contest"},
    {1,  0, { -2, -1,  0, -2,  0,  1, -2,  1,  2}, "Refusing a fair contest/challenge"},
    {1, 17, {  2,  1,  0,  1,  0, -1,  0, -1, -2}, "Refusing medical treatment for the good of the party"},
    {1,  0, {  0,  1,  2, -1,  0,  1, -2,  1,  1}, "Saving the life of another at great risk to own self"},
    {1,  0, { -5, -5, -5,  0,  0,  0,  5,  5,  5}, "Unjustly slaying a prisoner or unarmed opponent who has yielded"},
    {1,  0, { -5, -5,-10, -5, -2,-10, -5,  0,-10}, "Surrendering"},
    {1, 12, {  0,  0,  0,  0,  0,  0,  0,  0,  0}, "Surviving a critical hit"},
    {1,  0, {  1,  1,  1,  1,  0,  0,  1, -1, -1}, "Taking prisoner(s)"},
    {1,  0, {  0,  1,  2, -1,  0,  1, -2, -1, -1}, "Taking an arrow for someone else"},
    {1,  0, { -1, -1, -1,  0,  0,  1,  2,  1,  2}, "Taunting an enemy into fighting"},
    {1,  0, { -3, -2, -2,  0,  0,  0,  2,  2,  3}, "Urinating on a fallen enemy's corpse in full view of compatriots"},
    {1,  1, {  2,  2,  2,  2,  2,  2,  2,  2,  2}, "Victorious against overwhelming odds"},
    {1,  3, { -2, -1,  0, -2,  0,  1, -2,  1,  2}, "Walking away from a challenge"},
    // RFC table 4C
    {2,  0, { -5, -4, -3,  0,  0,  0, -1,  3,  5}, "Accused of a crime (innocent or not)"},
    {2,  0, {  1,  0, -1,  1,  0, -1,  1,  1,  1}, "Admonishing another PC when he wrongs you"},
    {2,  2, { -1, -1, -1, -1, -1, -1, -1, -1, -1}, "Allowing a personal slight/insult to go unchallenged"},
    {2,  4, { -2, -2, -2, -2, -2, -2, -3, -3, -3}, "Allowing an inferior to disrespect you"},
    {2,  0, { -1, -1, -1, -1, -1, -1, -1, -1, -1}, "An outsider laughing/mocking you or a fellow party member"},
    {2,  0, { -2, -2, -2, -1, -1, -1, -1, -1, -1}, "Being admonished by another PC for a wrongdoing"},
    {2,  0, { -2, -2, -2, -2, -2, -2, -3, -3, -5}, "Being publicly insulted or disparaged by an inferior (lower "
                                                   "level)"},
    {2,  0, { -1, -1, -1, -1, -1, -1, -1, -1, -1}, "Being publicly insulted or disparaged by an superior (higher "
                                                   "level)"},
    {2, 18, { 10, 10, 10, 10, 10, 10, 10, 10, 10}, "Breaking a blood oath"},  // a gain in the book
    {2,  0, {  1,  1,  1,  1,  1,  1,  1,  1,  1}, "Failing a skill course"},  // a gain in the book
    {2,  0, {  1,  1,  1,  1,  1,  1,  2,  2,  2}, "Challenging a slight to one's Honor"},
    {2,  0, { -5, -3, -1, -4, -2, -1, -3,  0,  3}, "Convicted of a crime"},
    {2,  0, { -5, -5, -5, -5, -5, -5, -5, -5, -5}, "Failing an alignment audit"},
    {2,  0, {  1,  1,  1,  1,  1,  1,  1,  1,  1}, "Fulfilling a blood oath"},
    {2, 16, { -1, -1, -1,  0,  0,  0,  2,  2,  2}, "Falsely claiming the 'bragging rights' that belong to another or "
                                                   "outright lying"},
    {2,  0, { -2, -2, -2, -2, -2, -2, -2, -2, -2}, "Going down a level in social class"},
    {2,  0, {  2,  2,  2,  2,  2,  2,  2,  2,  2}, "Going up a level in social class"},
    {2,  0, { -4, -4, -4, -2, -2, -2, -1,  0,  2}, "Killing a host who has provided you food or shelter"},
    {2,  6, { -1, -1, -1, -1, -1, -1, -2, -2, -4}, "Letting someone take advantage of you"},
    {2,  0, {  2,  2,  2,  2,  2,  2,  2,  2,  2}, "Marrying into a higher social class"},
    {2,  0, { -1, -1, -1,  0,  0,  0,  1,  1,  1}, "Neglecting to properly bury a member of one's own race"},
    {2,  0, { -3,  0,  0,  0,  0,  0,  1,  1,  1}, "Paying off an extortion or shakedown"},
    {2,  0, { -1,  1,  1,  2,  2,  2,  3,  3,  3}, "Perpetrate humiliating prank on enemy"},
    {2,  0, {  5,  4,  3,  0,  0,  0, -3, -4, -5}, "Picking up the funeral expenses of someone you slew in combat"},
    {2,  7, {  1,  2,  3,  3,  3,  3,  3,  4,  5}, "Publicly humiliating a creature/character of a higher level or "
                                                   "Honor"},
    {2,  0, { -2, -1,  0, -1,  0,  0,  0,  0,  0}, "Rash or improper social behavior"},
    {2, 15, {  5,  5,  5,  5,  5,  5,  5,  5,  5}, "Reaching name level"},
    {2,  0, {  2,  2,  2,  2,  2,  2,  2,  2,  2}, "Rendering an attitude adjustment"},
    {2,  0, { -1, -1, -1, -1, -1, -1, -2, -2, -3}, "Requesting a favor/charity"},
    {2,  0, {  2,  0, -1,  1,  0,  0,  3,  2,  3}, "Snitching or ratting out player character to authorities/enemy"},
    {2,  0, { -1,  0,  0,  0,  0,  0,  4,  1,  1}, "Taking a bribe"},
    {2,  0, { -5, -3, -2, -2, -2, -2, -4,  0,  2}, "Treason"},
    {2,  0, {  1,  1,  1,  1,  1,  1,  1,  1,  1}, "Wearing expensive equipment (25% chance per item per day)"},
    // RFC table 4D
    {3,  0, {  2,  2,  2,  2,  2,  2,  2,  2,  2}, "Acquiring land (per transaction)"},
    {3,  0, {  2,  2,  2,  2,  2,  2,  2,  2,  2}, "Advancing a level in experience"},
    {3, 20, {  1,  1,  1,  1,  1,  1,  0,  0,  0}, "Master Teacher offers to take on a character"},
    {3,  0, {  5,  5,  5,  5,  5,  5,  5,  5,  5}, "Claiming territory from an entity of opposing alignment"},
    {3,  0, {  5,  5,  5,  5,  5,  5,  5,  5,  5}, "Completing a personal quest"},
    {3,  0, { -1, -1, -1, -1, -1, -1, -1, -1, -1}, "Dying only to be raised again"},
    {3,  0, { -1, -1, -1, -1, -1, -1, -1, -1, -2}, "Entering into debt"},
    {3,  0, { -5, -5, -5, -5, -5, -5, -5, -5, -5}, "Failing a personal quest"},
    {3,  0, {  4,  4,  4,  4,  4,  4,  4,  4,  4}, "Gaining mastery level in a skill (101%+)"},
    {3,  0, {  8,  8,  8,  8,  8,  8,  8,  8,  8}, "In possession of a Quellmarch class item (per item)"},
    {3,  0, { -2, -2, -2, -2, -2, -2, -2, -2, -2}, "Losing a level of experience"},
    {3,  0, { -1, -1, -1, -1, -1, -1, -1, -1, -1}, "Losing a magic item/weapon"},
    {3,  0, {  1,  1,  1,  1,  1,  1,  1,  1,  1}, "Winning a noncombat contest"},
    // RFC table 4E
    {4, 19, {  1,  1,  1,  1,  1,  1,  1,  1,  1}, "Assassinating a character/NPC of a higher level"},
    {4,  0, {  0,  0,  0,  0,  0,  0, -3,  0,  3}, "True Identity discovered"},
    {4, 13, {  1,  1,  1,  1,  1,  1, -1, -1, -1}, "Healing, curing, or restoring a PC/NPC"},
    {4, 13, {  3,  3,  3,  2,  2,  2, -3, -3, -3}, "Removing a curse"},
    {4, 13, {  5,  5,  5,  3,  3,  3, -5, -5, -5}, "Raising/Resurrecting a PC/NPC"},
    {4,  0, {  2,  2,  2,  2,  2,  2,  2,  2,  2}, "Bragging and showing off battle scars"},
    {4, 14, {  1,  1,  1,  1,  1,  1,  1,  1,  1}, "Per trophy taken from a fallen foe"},
    {4,  0, {  5,  5,  5,  5,  5,  5,  5,  5,  5}, "Creating a new magic item which bears MU's name"},
    {4,  0, {  5,  5,  5,  5,  5,  5,  5,  5,  5}, "Creating a new spell which bears MU's name"},
    {4,  0, { -2, -2, -2, -2, -2, -2, -2, -2, -2}, "Overindulgence in food or drink"},
    {4,  0, { -2, -2, -2, -2, -2, -2, -2, -2, -2}, "Being discovered by police"},
    {4,  0, { -4, -4, -4, -4, -4, -4, -4, -4, -4}, "Being caught in the act"},
    {4,  0, { -6, -6, -6, -6, -6, -6, -6, -6, -6}, "Losing an item of value to another thief"},
    // RFC table 4F
    {5,  0, { -1, -1, -1, -1, -1, -1, -1, -1, -1}, "Initiating an Honor duel with one of lower honor"},
    {5,  0, {  1,  1,  2,  0, -1,  1, -1, -2, -1}, "Giving a gift of value to NPC"},
    {5,  0, {  2,  1,  1,  1,  0,  0, -1, -2, -1}, "Granting a favor to NPC"},
    {5,  0, {  1,  1,  2,  0,  0,  1, -1, -2, -3}, "Saving an NPC's life"},
    {5,  0, { -5, -5, -5, -5, -5, -5, -5, -5, -5}, "Attempting to act on knowledge his character does not have"},
    {5,  0, {  1,  1,  1,  1,  1,  1,  1,  1,  1}, "Volunteering to make a snack run for the group"},
    {5, 10, {  1,  1,  1,  1,  1,  1,  1,  1,  1}, "Performing pizza duty"},
    {5, 11, { -1, -1, -1,  0,  0,  1,  0,  2,  1}, "Taking the last soda/last piece of pizza without dicing for it"},
    {5,  0, { -1, -1,  0, -1,  0,  0, -1, -1, -1}, "Repeatedly making bad jokes/lame sound effects, etc"},
    // RFC table 4G
    {6, 21, {  5,  5,  5,  5,  5,  5,  5,  5,  5}, "Avenging murder of family member"},
    {6,  0, { -5, -5, -5, -5, -5, -5, -5, -5, -5}, "Banished by Clan"},
    {6,  0, {  1,  1,  1,  1,  1,  1,  1,  1,  1}, "Member of Clan dies with great Honor (and stays dead)"},
    {6,  0, { 10, 10, 10, 10, 10, 10, 10, 10, 10}, "Defeating/Vanquishing a hereditary enemy"},
    {6, 22, { -1, -1, -1, -1, -1, -1, -1, -1, -1}, "Family Honor Token (herald, flag, crest) lost or stolen"},
    {6,  0, {  2,  1,  0,  2,  1,  0,  2,  1,  0}, "Forming an alliance with another clan"},
    {6,  0, {  4,  4,  4,  4,  4,  4,  4,  4,  4}, "Fulfills family debt"},
    {6,  0, { -6, -6, -6, -6, -6, -6, -6, -6, -6}, "Losing a birthright or an inherited item"},
    {6,  0, { -8, -7, -6, -6, -5, -4, -3,  0,  3}, "Murder of a family member"},
    {6,  0, { -5, -5, -5, -5, -5, -5, -5, -5, -5}, "Refusing one's Patriarch (Clan leader)"},
    {6, 23, {  1,  1,  1,  1,  1,  1,  1,  1,  1}, "Recovering or avenging a stolen or destroyed Honor Token"},
    // RFC table 4H
    {7,  0, { -5, -5, -5, -5, -5, -5, -5, -5, -5}, "Banished/Ousted by Party"},
    {7,  0, { 10,  7,  4, 10,  7,  4, 10,  7,  4}, "Completing a quest"},
    {7, 24, {  2,  2,  2,  2,  2,  2,  2,  2,  2}, "Completing an adventure"},
    {7, 25, { -1, -1, -1,  0,  0,  0, -1, -1, -1}, "Death of a fellow party member with High Honor"},
    {7,  0, {-10, -7, -4,-10, -7, -4,-10, -7, -4}, "Failing a quest"},
    // A gain in the book, though something is lost.
    {7, 26, {  1,  1,  1,  1,  1,  1,  1,  1,  1}, "Group Honor Token (battle standard, flag, crest) lost or stolen"},
    {7,  0, { -2, -4, -6,  0, -2, -4,  0,  2,  0}, "Unnecessary deaths in course of mission"},
}};

namespace {

constexpr std::array<std::string_view, kHonorNotes> kNotes = {
    "Paladins, dark knights, cavaliers and knigh errants earn double Honor points for this action (add it twice)",
    "Includes stares, rude comments, disaproving glances, being 'eye-balled', etc",
    "Remember that perception often belays intent",
    "Includes tolerating bad service or rude behavior from merchants, waitstaff, barkeeps and hirelings",
    "ONLY if the character's class or race allows the use of such items",
    "For example, losing a haggle exchange or paying good money for bad or shoddy products",
    "Includes authority figures like guards, nobles, etc. Awartd points only if figuring being disparaged is in a "
    "position to do something about it",
    "If the character is witnessed humiliating an honorable character it could backfire resulting in the heckler "
    "taking a hit on honor as well",
    "Penalties for dirty fighting do not apply if the other guy is 'dirty fighting' first",
    "Includes doing ALL the work",
    "Note that this includes using the last of the toilet paper (without letting anyone know)",
    "Severity Level - Critical hits to the groin actually cause a loss of Honor equal to the amount indicated",
    "Where applicable, an evil cleric gains Honor and a good cleric loses HONOR for the recerse of these actions",
    "The token must be from a foe of equal or greater level/hit dice and be a significant portion of the foe",
    "See definitions of Name level in RFC Chapter 17 Schools and Training",
    "Evil characters must make an Honor check to establish believability of the lie and thus gain the Honor",
    "So others may be treated first or so the adventure isn't delayed or hindered",
    "See Table ADC 5B",
    "+50% of character's Honor",
    "+10% of Character's Honor",
    "+5 per level",
    "Lose 75% of Honor",
    "+25% of Honor",
    "+2 per level",
    "-1 per level",
    "lose 50% of Honor",
};

constexpr std::array<std::string_view, kAlignmentCodes.size()> kAlignmentWords = {
    "Lawful-good", "Neutral-good", "Chaotic-good", "Lawful-neutral", "Neutral", "Chaotic-neutral",
    "Lawful-evil", "Neutral-evil", "Chaotic-evil"};

// clang-format on

/// Tables follow each other without a gap, and a note is one of the list.
static_assert([] {
  int table = 1;
  for (const HonorAward& award : HonorAwards) {
    if (award.Table != table && award.Table != ++table) return false;
    if (award.NoteIndex < 0 || award.NoteIndex > kHonorNotes) return false;
  }
  return table == kHonorAwardTables;
}());

}  // namespace

const HonorAward* FindHonorAward(std::string_view name) {
  const auto found = std::ranges::find(HonorAwards, name, &HonorAward::Name);
  return found == HonorAwards.end() ? nullptr : &*found;
}

std::vector<const HonorAward*> HonorAwardsOf(int table, std::string_view search) {
  std::vector<const HonorAward*> awards;
  for (const HonorAward& award : HonorAwards) {
    if (table != 0 && award.Table != table) continue;
    if (search.empty() || ContainsIgnoringCase(award.Name, search)) awards.push_back(&award);
  }
  return awards;
}

int HonorPoints(const HonorAward& award, std::string_view alignmentCode) {
  const auto code = std::ranges::find(kAlignmentCodes, alignmentCode);
  return code == kAlignmentCodes.end() ? 0 : award.Points[static_cast<std::size_t>(code - kAlignmentCodes.begin())];
}

std::string_view HonorNote(const HonorAward& award) {
  return award.NoteIndex == 0 ? std::string_view{} : kNotes[static_cast<std::size_t>(award.NoteIndex - 1)];
}

std::string_view AlignmentCodeOf(std::string_view alignment) {
  const std::string_view word = TrimRight(alignment);
  for (std::size_t i = 0; i < kAlignmentWords.size(); ++i) {
    if (EqualsIgnoringCase(word, kAlignmentWords[i])) return kAlignmentCodes[i];
  }
  return {};
}

}  // namespace veld
