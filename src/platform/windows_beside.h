#pragma once

#include <list>
#include <memory>
#include <ranges>
#include <utility>

namespace veld {

class Form;

/// For front ends: the windows that stay open beside the main window. `Page` shows a form and watches it; its IsOver()
/// says that the form has closed and no handler of it still runs.
template <typename Page>
class WindowsBeside {
 public:
  Page& Add(std::shared_ptr<Form> form, std::unique_ptr<Page> page) {
    return *windows_.emplace_back(std::move(form), std::move(page)).page;
  }

  /// The window opened last of those for which `isShown(page)` holds; nullptr if there is none.
  template <typename IsShown>
  Page* Top(IsShown isShown) const {
    for (const Window& window : windows_ | std::views::reverse) {
      if (isShown(*window.page)) return window.page.get();
    }
    return nullptr;
  }

  /// Takes the windows away that are over.
  void Sweep() {
    windows_.remove_if([](const Window& window) { return window.page->IsOver(); });
  }

  void Clear() { windows_.clear(); }

 private:
  /// Never moved or assigned to: at its end the page goes before the form that it watches.
  struct Window {
    Window(std::shared_ptr<Form> shown, std::unique_ptr<Page> by) : form(std::move(shown)), page(std::move(by)) {}
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    std::shared_ptr<Form> form;
    std::unique_ptr<Page> page;
  };

  std::list<Window> windows_;
};

}  // namespace veld
