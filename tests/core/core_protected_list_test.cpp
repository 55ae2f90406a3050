#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "core/ProtectedList.hpp"
#include "core_test_print.hpp"
#include "core_test_values.hpp"

using tessarin::ProtectedListEdit;
using tessarin::protectedListContains;
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
        std::vector<std::string> list;
    };
    const Case cases[] = {
        {"on into a missing list", std::nullopt, "a", true, true, list({"a"})},
        {"on appends in switching order", strings({"c", "b"}), "a", true, true, list({"c", "b", "a"})},
        {"on when present stores nothing", strings({"a", "b"}), "a", true, false, list({"a", "b"})},
        {"on when present among junk stores nothing", Value::array({Value::integer(3), Value::string("a")}), "a",
         true, false, list({"a"})},
        {"off removes every copy", strings({"a", "b", "a"}), "a", false, true, list({"b"})},
        {"off when absent still stores", strings({"b"}), "a", false, true, list({"b"})},
        {"off from a missing list stores an empty list", std::nullopt, "a", false, true, list({})},
        {"off of the last item stores an empty list", strings({"a"}), "a", false, true, list({})},
        {"wrong-typed value is replaced on", Value::string("a"), "a", true, true, list({"a"})},
        {"wrong-typed value is replaced off", Value::dictionary(), "a", false, true, list({})},
        {"items compare exactly", strings({"com.Example"}), "com.example", true, true,
         list({"com.Example", "com.example"})},
        {"a name with spaces is one item", strings({"Wi-Fi"}), "Screen Time", true, true,
         list({"Wi-Fi", "Screen Time"})},
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
