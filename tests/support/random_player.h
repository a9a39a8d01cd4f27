#pragma once

#include <string>
#include <vector>

#include "platform/form.h"
#include "platform/no_front_end.h"

namespace veld::testing {

/// A player who presses any button in any order and fills any field with numbers and texts that make sense or don't.
/// Every dialog is left in the end: by its OK where it lets go, else by its close box. A seed gives the same play
/// again.
class RandomPlayer : public NoFrontEnd {
 public:
  explicit RandomPlayer(std::uint32_t seed, int actionsPerForm = 60) : state_(seed), actionsPerForm_(actionsPerForm) {}

  std::string savePath;               ///< what every save dialog gives; empty: cancelled
  std::vector<std::string> messages;  ///< all that was told
  std::vector<std::string> forms;     ///< names of all that was opened
  std::shared_ptr<Form> window;       ///< shown last by ShowWindow
  std::string stuckForm;              ///< a form that its close box did not close
  int seldomUsed = -1;                ///< a search field, out of sight most of the time: so there are goods to press on

  /// 0..below-1.
  std::uint32_t Pick(std::uint32_t below);
  /// One random thing done to a form.
  virtual void Act(Form& form);

  void RunForm(Form& form) override;
  void ShowWindow(std::shared_ptr<Form> form) override;
  bool ShowProgress(int) override { return Pick(4) != 0; }
  std::int64_t Now() const override { return state_; }

 protected:
  void DoShowMessage(const std::string& caption, const std::string& text) override;
  Answer DoAskYesNo(const std::string& caption, const std::string& text) override;
  std::optional<ChosenPath> DoAskSavePath(const std::string&, std::span<const FileFilter>, const std::string&) override;

 private:
  void ThrowDice(Form& form);

  std::uint32_t state_;
  int actionsPerForm_;
};

}  // namespace veld::testing
