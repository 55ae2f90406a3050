#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "passcode/ChangePasscodeFlow.hpp"
#include "passcode/PasscodeFlow.hpp"
#include "passcode/SetPasscodeFlow.hpp"

namespace tessarin::passcode {
namespace {

// What a page would have written under "passcode" after a run of steps.
struct Written {
  int stores = 0;
  int removes = 0;
  std::string value;
};

template <class Flow>
Written run(Flow &flow, const std::vector<std::string> &entries, std::vector<Step> *steps = nullptr) {
  Written w;
  for (const std::string &e : entries) {
    Step s = flow.enter(e);
    if (s.commit == Commit::Store) {
      ++w.stores;
      w.value = s.value;
    }
    if (s.commit == Commit::Remove) ++w.removes;
    if (steps) steps->push_back(s);
  }
  return w;
}

// ---------------------------------------------------------------------------
// Choosing a passcode

struct SetCase {
  const char *name;
  std::vector<std::string> entries;
  int stores;
  std::string value;
  SetPasscodeFlow::State endState;
};

class SetFlowTable : public ::testing::TestWithParam<SetCase> {};

TEST_P(SetFlowTable, StoresOnlyTwoEqualEntries) {
  const SetCase &c = GetParam();
  SetPasscodeFlow flow;
  Written w = run(flow, c.entries);
  EXPECT_EQ(w.stores, c.stores);
  EXPECT_EQ(w.value, c.value);
  EXPECT_EQ(w.removes, 0);
  EXPECT_EQ(flow.state(), c.endState);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, SetFlowTable,
    ::testing::Values(
        SetCase{"same_twice", {"1234", "1234"}, 1, "1234", SetPasscodeFlow::State::Closed},
        SetCase{"leading_zeros_kept", {"0000", "0000"}, 1, "0000", SetPasscodeFlow::State::Closed},
        SetCase{"leading_zero_not_numeric", {"0123", "123"}, 0, "", SetPasscodeFlow::State::Enter},
        SetCase{"mismatch", {"1234", "4321"}, 0, "", SetPasscodeFlow::State::Enter},
        // After a mismatch the next entry is a new first entry, compared with
        // nothing, and the old first entry is forgotten.
        SetCase{"restart_after_mismatch", {"1111", "2222", "2222", "2222"}, 1, "2222", SetPasscodeFlow::State::Closed},
        SetCase{"old_first_forgotten", {"1111", "2222", "1111"}, 0, "", SetPasscodeFlow::State::Reenter},
        SetCase{"only_first", {"5678"}, 0, "", SetPasscodeFlow::State::Reenter},
        SetCase{"entries_after_store_ignored",
                {"1234", "1234", "1234", "1234"},
                1,
                "1234",
                SetPasscodeFlow::State::Closed}),
    [](const auto &info) { return std::string(info.param.name); });

// An empty first entry is still a first entry (nothing held never equals it).
TEST(SetPasscodeFlow, EmptyEntryIsAFirstEntry) {
  SetPasscodeFlow flow;
  EXPECT_EQ(flow.enter("").transition, Transition::Slide);
  Step s = flow.enter("");
  EXPECT_EQ(s.commit, Commit::Store);
  EXPECT_EQ(s.value, "");
}

// ---------------------------------------------------------------------------
// Cancel writes nothing in any state

TEST(PasscodeCancel, WritesNothingInAnyState) {
  struct Case {
    const char *name;
    std::vector<std::string> before;
  };
  const Case cases[] = {{"fresh", {}}, {"after_first", {"1234"}}, {"after_mismatch", {"1234", "1"}}};
  for (const Case &c : cases) {
    SCOPED_TRACE(c.name);
    SetPasscodeFlow set;
    RemovePasscodeFlow remove(std::string("9999"));  // the entries before only shake it
    ChangePasscodeFlow change(std::string("1234"));
    Written ws = run(set, c.before);
    Written wr = run(remove, c.before);
    Written wc = run(change, c.before);
    ASSERT_EQ(ws.stores + wr.stores + wr.removes + wc.stores + wc.removes, 0);

    for (Step s : {set.cancel(), remove.cancel(), change.cancel()}) {
      EXPECT_EQ(s.commit, Commit::None);
      EXPECT_TRUE(s.isNothing());
    }
    // A late entry after cancel does nothing either.
    EXPECT_EQ(run(set, {"1234", "1234"}).stores, 0);
    EXPECT_EQ(run(remove, {"9999"}).removes, 0);
    EXPECT_EQ(run(change, {"1234", "1234", "1234"}).stores, 0);
    EXPECT_TRUE(set.closed());
    EXPECT_TRUE(remove.closed());
    EXPECT_TRUE(change.closed());
  }
}

// ---------------------------------------------------------------------------
// Removing

struct RemoveCase {
  const char *name;
  std::optional<std::string> stored;
  std::vector<std::string> entries;
  int removes;
  int shakes;
};

class RemoveFlowTable : public ::testing::TestWithParam<RemoveCase> {};

TEST_P(RemoveFlowTable, RemovesOnlyWithTheStoredPasscode) {
  const RemoveCase &c = GetParam();
  RemovePasscodeFlow flow(c.stored);
  std::vector<Step> steps;
  Written w = run(flow, c.entries, &steps);
  EXPECT_EQ(w.removes, c.removes);
  EXPECT_EQ(w.stores, 0);  // never Store(""), always Remove
  int shakes = 0;
  for (const Step &s : steps) {
    if (s.transition != Transition::Shake) continue;
    ++shakes;
    EXPECT_TRUE(s.playErrorSound);
    EXPECT_EQ(s.prompt.key, "ENTER_OLD_TESSARIN_PASSCODE");
    EXPECT_EQ(s.warning.key, "WRONG_PASSCODE_TRY_AGAIN");
  }
  EXPECT_EQ(shakes, c.shakes);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, RemoveFlowTable,
    ::testing::Values(
        RemoveCase{"right_at_once", std::string("1234"), {"1234"}, 1, 0},
        RemoveCase{"wrong_then_right", std::string("1234"), {"4321", "0000", "1234"}, 1, 2},
        RemoveCase{"many_wrong_no_lockout", std::string("0007"), {"1", "2", "3", "4", "5", "6", "7", "0007"}, 1, 7},
        RemoveCase{"leading_zeros_differ", std::string("0012"), {"12", "012"}, 0, 2},
        RemoveCase{"nothing_stored", std::nullopt, {"", "0000", "1234"}, 0, 3},
        RemoveCase{"stored_empty_string", std::string(""), {""}, 1, 0}),
    [](const auto &info) { return std::string(info.param.name); });

// ---------------------------------------------------------------------------
// Changing

using CS = ChangePasscodeFlow::State;

struct ChangeEntry {
  std::string entry;
  Transition transition;
  const char *prompt;   // key after the step ("" for none)
  const char *warning;  // key after the step ("" for none)
  CS next;
};

struct ChangeCase {
  const char *name;
  std::optional<std::string> stored;
  std::vector<ChangeEntry> entries;
  int stores;
  std::string value;
};

class ChangeFlowTable : public ::testing::TestWithParam<ChangeCase> {};

TEST_P(ChangeFlowTable, FollowsTheStateTable) {
  const ChangeCase &c = GetParam();
  ChangePasscodeFlow flow(c.stored);
  EXPECT_EQ(flow.state(), CS::Old);
  Written w;
  for (std::size_t i = 0; i < c.entries.size(); ++i) {
    const ChangeEntry &e = c.entries[i];
    SCOPED_TRACE(i);
    Step s = flow.enter(e.entry);
    EXPECT_EQ(s.transition, e.transition);
    EXPECT_EQ(s.prompt.key, e.prompt);
    EXPECT_EQ(s.warning.key, e.warning);
    EXPECT_EQ(s.playErrorSound, e.transition == Transition::Shake);
    EXPECT_EQ(flow.state(), e.next);
    EXPECT_NE(s.commit, Commit::Remove);
    if (s.commit == Commit::Store) {
      ++w.stores;
      w.value = s.value;
    }
  }
  EXPECT_EQ(w.stores, c.stores);
  EXPECT_EQ(w.value, c.value);
}

constexpr const char *kOld = "ENTER_OLD_TESSARIN_PASSCODE";
constexpr const char *kNew = "ENTER_TESSARIN_PASSCODE";
constexpr const char *kAgain = "REENTER_TESSARIN_PASSCODE";
constexpr const char *kWrongKey = "WRONG_PASSCODE_TRY_AGAIN";
constexpr const char *kMismatchKey = "PASSCODES_DID_NOT_MATCH_TRY_AGAIN";

INSTANTIATE_TEST_SUITE_P(Cases, ChangeFlowTable,
                         ::testing::Values(ChangeCase{"straight",
                                                      std::string("1234"),
                                                      {{"1234", Transition::Slide, kNew, "", CS::New},
                                                       {"5678", Transition::Slide, kAgain, "", CS::Confirm},
                                                       {"5678", Transition::None, "", "", CS::Closed}},
                                                      1,
                                                      "5678"},
                                           ChangeCase{"wrong_old_first",
                                                      std::string("1234"),
                                                      {{"0000", Transition::Shake, kOld, kWrongKey, CS::Old},
                                                       {"1234", Transition::Slide, kNew, "", CS::New},
                                                       {"0000", Transition::Slide, kAgain, "", CS::Confirm},
                                                       {"0000", Transition::None, "", "", CS::Closed}},
                                                      1,
                                                      "0000"},
                                           // The old passcode is accepted as the new one.
                                           ChangeCase{"old_as_new",
                                                      std::string("1234"),
                                                      {{"1234", Transition::Slide, kNew, "", CS::New},
                                                       {"1234", Transition::Slide, kAgain, "", CS::Confirm},
                                                       {"1234", Transition::None, "", "", CS::Closed}},
                                                      1,
                                                      "1234"},
                                           // A confirmation mismatch goes back to the new passcode, not the old one.
                                           ChangeCase{"mismatch_back_to_new",
                                                      std::string("1234"),
                                                      {{"1234", Transition::Slide, kNew, "", CS::New},
                                                       {"5678", Transition::Slide, kAgain, "", CS::Confirm},
                                                       {"8765", Transition::Shake, kNew, kMismatchKey, CS::New},
                                                       // The old passcode now counts as a new first entry.
                                                       {"1234", Transition::Slide, kAgain, "", CS::Confirm},
                                                       {"1234", Transition::None, "", "", CS::Closed}},
                                                      1,
                                                      "1234"},
                                           ChangeCase{"nothing_stored_only_shakes",
                                                      std::nullopt,
                                                      {{"", Transition::Shake, kOld, kWrongKey, CS::Old},
                                                       {"0000", Transition::Shake, kOld, kWrongKey, CS::Old},
                                                       {"1234", Transition::Shake, kOld, kWrongKey, CS::Old}},
                                                      0,
                                                      ""}),
                         [](const auto &info) { return std::string(info.param.name); });

}  // namespace
}  // namespace tessarin::passcode
