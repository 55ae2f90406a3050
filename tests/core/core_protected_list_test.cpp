#include <gtest/gtest.h>

#include <optional>

#include "core/ProtectedList.hpp"
#include "core_test_print.hpp"
#include "core_test_values.hpp"

using tessarin::protectedListContains;
using tessarin::ProtectedListEdit;
using tessarin::protectedListEdit;
using tessarin::plist::Value;

// One switch of a list page: whether it writes, and what.
TEST(ProtectedListEdit, StoresOnlyWhatTheSwitchChanges) {
  struct Case {
    const char *name;
    std::optional<Value> stored;
    const char *item;
    bool on;
    bool store;
    Value list;
  };
  const Value junk = Value::dictionary({{"x", Value::integer(1)}});
  const Case cases[] = {
      {"on into a missing list", std::nullopt, "a", true, true, strings({"a"})},
      {"on appends in switching order", strings({"c", "b"}), "a", true, true, strings({"c", "b", "a"})},
      {"on when present stores nothing", strings({"a", "b"}), "a", true, false, strings({"a", "b"})},
      {"off removes every copy", strings({"a", "b", "a"}), "a", false, true, strings({"b"})},
      {"off when absent still stores", strings({"b"}), "a", false, true, strings({"b"})},
      {"off from a missing list stores an empty list", std::nullopt, "a", false, true, strings({})},
      {"off of the last item stores an empty list", strings({"a"}), "a", false, true, strings({})},
      {"wrong-typed value is replaced on", Value::string("a"), "a", true, true, strings({"a"})},
      {"wrong-typed value is replaced off", Value::dictionary(), "a", false, true, strings({})},
      {"items compare exactly", strings({"com.Example"}), "com.example", true, true,
       strings({"com.Example", "com.example"})},
      {"an empty item is an item", strings({"a"}), "", true, true, strings({"a", ""})},
      // What the page does not understand stays where it was.
      {"on keeps other entries in place", Value::array({Value::integer(3), Value::string("b"), junk}), "a", true, true,
       Value::array({Value::integer(3), Value::string("b"), junk, Value::string("a")})},
      {"on when present among junk stores nothing", Value::array({Value::integer(3), Value::string("a")}), "a", true,
       false, Value::array({Value::integer(3), Value::string("a")})},
      {"off keeps other entries in place", Value::array({Value::string("a"), Value::integer(3), junk}), "a", false,
       true, Value::array({Value::integer(3), junk})},
      {"a number is not the item of its digits", Value::array({Value::integer(1)}), "1", true, true,
       Value::array({Value::integer(1), Value::string("1")})},
  };
  for (const Case &c : cases) {
    const ProtectedListEdit edit = protectedListEdit(c.stored ? &*c.stored : nullptr, c.item, c.on);
    EXPECT_EQ(edit.store, c.store) << c.name;
    EXPECT_EQ(edit.list, c.list) << c.name;
  }
}

TEST(ProtectedListEdit, ContainsReadsOnlyStringEntries) {
  struct Case {
    const char *name;
    std::optional<Value> stored;
    const char *item;
    bool expected;
  };
  const Case cases[] = {
      {"missing list", std::nullopt, "a", false},
      {"present", strings({"b", "a"}), "a", true},
      {"absent", strings({"b"}), "a", false},
      {"prefix is not the item", strings({"ab"}), "a", false},
      {"not an array", Value::string("a"), "a", false},
      {"number entry is not the item", Value::array({Value::integer(1)}), "1", false},
  };
  for (const Case &c : cases)
    EXPECT_EQ(protectedListContains(c.stored ? &*c.stored : nullptr, c.item), c.expected) << c.name;
}
