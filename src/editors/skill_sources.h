#pragma once

#include "editors/held_page.h"

namespace veld {

/// The plain skills: masteries in percentile points. The count of languages known follows.
const HeldSource& PlainSkillSource();

/// The skills whose members have names. A language and its writing share a slot: the writing of a language that the
/// character has is listed beneath its family until it is learnt, and new ones are matched by name.
const HeldSource& NamedSkillSource();

}  // namespace veld
