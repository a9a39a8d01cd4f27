#pragma once

#include "platform/form.h"

namespace veld::testing {

/// Counts what is done to forms, and what of it is taken back and done again; changes nothing.
class CountedActs : public FormActs {
 public:
  int done = 0;
  int takenBack = 0;
  std::function<void()> onTakeBack;

  void OnAct(const Form&, const FormAct&) override {
    ++done;
    takenBack = 0;
  }
  bool CanTakeBack() const override { return done > 0; }
  void TakeBack() override {
    --done;
    ++takenBack;
    if (onTakeBack) onTakeBack();
  }
  bool CanDoAgain() const override { return takenBack > 0; }
  void DoAgain() override {
    ++done;
    --takenBack;
  }
};

}  // namespace veld::testing
