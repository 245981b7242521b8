// Ears of one native control, which come and go in any order.
#include "windows/Ear.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "PaneHost.h"
#include "windows/Handles.h"
#include "windows/Window.h"

namespace quorvel::windows {
namespace {

class EarTest : public testing::Test {
 protected:
  static constexpr UINT kAsked = WM_APP + 1;

  // Notes its name; handles the message where `answer` is not 0.
  Ear::Hear Noting(const char* name, LRESULT answer = 0) {
    return [this, name, answer](UINT message, WPARAM, LPARAM) {
      if (message != kAsked) return std::optional<LRESULT>();
      heard += name;
      return answer == 0 ? std::optional<LRESULT>() : answer;
    };
  }
  std::string Ask() {
    heard.clear();
    const LRESULT answer = SendMessageW(control.get(), kAsked, 0, 0);
    return heard + " " + std::to_string(answer);
  }

  test::PaneHost host;
  UniqueWindow control{
      CreateWindowExW(0, WC_EDITW, L"text", WS_CHILD, 0, 0, 10, 10, host.window(), nullptr, Module(), nullptr)};
  std::string heard;
};

TEST_F(EarTest, TheNewestHearsFirstAndAnyMayGo) {
  const LONG_PTR own = GetWindowLongPtrW(control.get(), GWLP_WNDPROC);
  auto first = std::make_unique<Ear>(control.get(), Noting("1"));
  auto second = std::make_unique<Ear>(control.get(), Noting("2"));
  auto third = std::make_unique<Ear>(control.get(), Noting("3"));
  EXPECT_EQ(Ask(), "321 0");
  second.reset();
  EXPECT_EQ(Ask(), "31 0");
  const auto fourth = std::make_unique<Ear>(control.get(), Noting("4", 7));
  EXPECT_EQ(Ask(), "4 7");
  EXPECT_EQ(SendMessageW(control.get(), WM_GETTEXTLENGTH, 0, 0), 4) << "the control's own";
  // One that passes a message on and ends meanwhile.
  std::unique_ptr<Ear> passing;
  passing = std::make_unique<Ear>(control.get(), [&](UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != kAsked) return std::optional<LRESULT>();
    heard += "p";
    const LRESULT answer = passing->Pass(message, wParam, lParam);
    passing.reset();
    return std::optional(answer + 1);
  });
  EXPECT_EQ(Ask(), "p4 8");
  EXPECT_EQ(Ask(), "4 7");
  EXPECT_NE(GetWindowLongPtrW(control.get(), GWLP_WNDPROC), own);
  third.reset();
  first.reset();
  EXPECT_EQ(Ask(), "4 7");
}

TEST_F(EarTest, LeavesTheControlAsItWasAndOutlivesIt) {
  const LONG_PTR own = GetWindowLongPtrW(control.get(), GWLP_WNDPROC);
  { const Ear ear(control.get(), Noting("1")); }
  EXPECT_EQ(GetWindowLongPtrW(control.get(), GWLP_WNDPROC), own);
  const Ear older(control.get(), Noting("1"));
  const Ear ear(control.get(), Noting("2"));
  control.reset();
  EXPECT_EQ(ear.Pass(kAsked, 0, 0), 0);
  EXPECT_EQ(heard, "");
}

}  // namespace
}  // namespace quorvel::windows
