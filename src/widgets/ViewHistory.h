#pragma once

#include "widgets/ViewWindow.h"

#include <cstddef>
#include <vector>

namespace talvesk {

/// The views that a user came through, as a browser keeps its pages.
class ViewHistory {
 public:
  void clear();
  /// The view that is about to be left. Views that were gone back from are forgotten.
  void leave(const ViewWindow& window);

  bool canGoBack() const { return !mBack.empty(); }
  bool canGoForward() const { return !mForward.empty(); }
  /// \param now the view that is left \return the one to show; `now` where there is none
  ViewWindow back(const ViewWindow& now);
  ViewWindow forward(const ViewWindow& now);

  static constexpr std::size_t kLongest = 100;  ///< older views are forgotten

 private:
  std::vector<ViewWindow> mBack;
  std::vector<ViewWindow> mForward;
};

}  // namespace talvesk
