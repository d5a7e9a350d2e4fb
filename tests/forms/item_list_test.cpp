#include "forms/item_list.h"

#include <gtest/gtest.h>

#include "support/errors.h"

namespace forms {
namespace {

TEST(ItemList, TellsThePlaceThatAnEntryTakes) {
  ItemList sorted{true};
  const std::pair<std::string_view, int> entries[] = {
      {"Mumbai", 0}, {"agra", 0},   {"Agra Cantt", 1},         {"Zira", 3},
      {"AGRA", 1},   {"mumbai", 4}, {"Agra, Uttar Pradesh", 2}};
  for (const auto& [text, place] : entries) EXPECT_EQ(sorted.AddItem(text), place) << text;
  sorted.SetItemData(1, 7);
  EXPECT_EQ(sorted.AddItem("Aden"), 0);
  EXPECT_EQ(sorted.ItemData(2), 7);
  EXPECT_EQ(sorted.List(2), "AGRA");
  ItemList inOrder{false};
  EXPECT_EQ(inOrder.AddItem("b"), 0);
  EXPECT_EQ(inOrder.AddItem("a"), 1);
}

TEST(ItemList, KeepsItsSelectionOnTheEntry) {
  ItemList list{true};
  list.AddItem("b");
  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_ERROR(InvalidCall, list.SetListIndex(1));
  EXPECT_ERROR(InvalidCall, list.SetListIndex(-1));
  EXPECT_ERROR(InvalidCall, list.ItemData(-1));
  list.SetListIndex(0);
  list.AddItem("a");
  EXPECT_EQ(list.ListIndex(), 1);
  list.AddItem("c");
  EXPECT_EQ(list.ListIndex(), 1);
  list.Clear();
  EXPECT_EQ(list.ListIndex(), -1);
}

}  // namespace
}  // namespace forms
