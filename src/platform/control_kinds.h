#pragma once

#include "platform/form_template.h"

namespace veld {

// What the lay-out, the names of controls and the front ends ask of a kind of control.

inline bool IsBox(ControlKind kind) {
  return kind == ControlKind::Edit || kind == ControlKind::Number || kind == ControlKind::Button ||
         kind == ControlKind::Combo || kind == ControlKind::Progress;
}

inline bool IsLine(ControlKind kind) {
  return kind == ControlKind::Edit || kind == ControlKind::Number;
}

inline bool IsTyped(ControlKind kind) {
  return IsLine(kind) || kind == ControlKind::MultiLine;
}

inline bool IsChosenFrom(ControlKind kind) {
  return kind == ControlKind::List || kind == ControlKind::Combo;
}

inline bool IsMark(ControlKind kind) {
  return kind == ControlKind::Check || kind == ControlKind::Radio;
}

/// Takes the room that is left over, and gives room up when there is too little.
inline bool Stretches(ControlKind kind) {
  return kind == ControlKind::List || kind == ControlKind::MultiLine || kind == ControlKind::Text;
}

/// Can do with less width than it wants: it scrolls, or its end is left out.
inline bool Shrinks(ControlKind kind) {
  return Stretches(kind) || kind == ControlKind::Result || kind == ControlKind::Edit || kind == ControlKind::Combo ||
         kind == ControlKind::Progress;
}

inline bool IsWriting(ControlKind kind) {
  return kind == ControlKind::Title || kind == ControlKind::Heading || kind == ControlKind::Label ||
         kind == ControlKind::Result;
}

inline bool CanBeUsed(ControlKind kind) {
  return !IsWriting(kind) && kind != ControlKind::Progress && kind != ControlKind::Text;
}

}  // namespace veld
