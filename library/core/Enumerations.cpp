#include "core/Enumerations.h"

namespace orve {

namespace {

struct Member {
  std::int32_t value;
  std::string_view text;
};

template <class Enumeration, std::size_t Count>
constexpr std::string_view Find(Enumeration value, const Member (&members)[Count]) {
  for (const Member& member : members)
    if (member.value == static_cast<std::int32_t>(value)) return member.text;
  return {};
}

}  // namespace

std::string_view PublishedText(BuildingAreas value) {
  static constexpr Member members[] = {
      {0, "baRoof"},
      {1, "baWalls"},
      {2, "baParapet"},
  };
  return Find(value, members);
}

std::string_view PublishedText(Faces value) {
  static constexpr Member members[] = {
      {0, "Face 1"},
      {1, "Face 2"},
      {2, "Face 3"},
      {3, "Face 4"},
  };
  return Find(value, members);
}

std::string_view PublishedText(ResultsScreens value) {
  static constexpr Member members[] = {
      {0, "External Coefficient"},
      {1, "Overall Applied Loads"},
  };
  return Find(value, members);
}

std::string_view PublishedText(ParentTypes value) {
  static constexpr Member members[] = {
      {0, "None"},
      {1, "Purlin - Single"},
      {2, "Purlin - Double"},
      {3, "Siderail - Single"},
      {4, "Siderail - Double"},
      {5, "Purlin - Continuous Single"},
      {6, "Purlin - Continuous Double"},
      {7, "Eavesbeam Design"},
      {8, "Cantilever Design - Single"},
      {10, "Cantilever Design - Double"},
      {9, "ptParapetDesign"},
  };
  return Find(value, members);
}

std::string_view PublishedText(WindSectors value) {
  static constexpr Member members[] = {
      {0, "  0 degrees"}, {1, " 30 degrees"}, {2, " 60 degrees"},  {3, " 90 degrees"},
      {4, "120 degrees"}, {5, "150 degrees"}, {6, "180 degrees"},  {7, "210 degrees"},
      {8, "240 degrees"}, {9, "270 degrees"}, {10, "300 degrees"}, {11, "330 degrees"},
  };
  return Find(value, members);
}

std::string_view PublishedText(RoofTypes value) {
  static constexpr Member members[] = {
      {0, "Flat roof with sharp eaves"},
      {1, "Flat roof with parapets"},
      {2, "Flat roof with curved eaves"},
      {3, "Flat roof with mansard eaves"},
      {4, "Mono-pitched roof"},
      {5, "Duo-pitched roof"},
      {6, "Hipped roof"},
      {7, "Curved roof"},
  };
  return Find(value, members);
}

std::string_view PublishedText(FrameTypes value) {
  static constexpr Member members[] = {
      {0, "1 Frame"},
      {1, "2 Frames"},
      {2, "3+ Frames"},
  };
  return Find(value, members);
}

std::string_view PublishedText(GableFaces value) {
  static constexpr Member members[] = {
      {0, "Faces 1 and 3"},
      {1, "Faces 2 and 4"},
  };
  return Find(value, members);
}

std::string_view PublishedText(LifeTime value) {
  static constexpr Member members[] = {
      {0, "Permanent"},
      {1, "Temporary"},
  };
  return Find(value, members);
}

std::string_view PublishedText(Durations value) {
  static constexpr Member members[] = {
      {0, "All year"}, {1, "Winter"}, {2, "Summer"}, {3, "4 months"}, {4, "2 months"}, {5, "1 month"},
  };
  return Find(value, members);
}

std::string_view PublishedText(Methods value) {
  static constexpr Member members[] = {
      {0, "Directional"},
      {1, "Hybrid"},
  };
  return Find(value, members);
}

std::string_view PublishedText(SaBasedOnTypes value) {
  static constexpr Member members[] = {
      {0, "Altitude"},
      {1, "Topography"},
  };
  return Find(value, members);
}

std::string_view PublishedText(Months value) {
  static constexpr Member members[] = {
      {0, "January"}, {1, "February"}, {2, "March"},     {3, "April"},   {4, "May"},       {5, "June"},
      {6, "July"},    {7, "August"},   {8, "September"}, {9, "October"}, {10, "November"}, {11, "December"},
  };
  return Find(value, members);
}

std::string_view PublishedText(WindAreas value) {
  static constexpr Member members[] = {
      {0, "waRoof"},     {1, "waSidewall"},        {2, "waGable"},
      {3, "waInternal"}, {4, "waSidewallParapet"}, {5, "waGableParapet"},
  };
  return Find(value, members);
}

std::string_view PublishedText(Bays value) {
  static constexpr Member members[] = {
      {0, "End Bay"},
      {1, "Second Bay"},
      {2, "All Remaining Bays"},
  };
  return Find(value, members);
}

std::string_view PublishedText(WallZones value) {
  static constexpr Member members[] = {
      {0, "Windward"},    {1, "Leeward"},     {2, "A (face 1)"},  {3, "B (face 1)"},  {4, "C (face 1)"},
      {5, "A (face 2)"},  {6, "B (face 2)"},  {7, "C (face 2)"},  {8, "A (face 3)"},  {9, "B (face 3)"},
      {10, "C (face 3)"}, {11, "A (face 4)"}, {12, "B (face 4)"}, {13, "C (face 4)"},
  };
  return Find(value, members);
}

std::string_view PublishedText(StructureTypes value) {
  static constexpr Member members[] = {
      {0, "Enclosed building"},
      {1, "Dominant opening"},
      {2, "Open sided building"},
  };
  return Find(value, members);
}

std::string_view PublishedText(WindPressureTypes value) {
  static constexpr Member members[] = {
      {0, "wptSidewall"},
      {1, "wptGable"},
      {2, "wptRoof"},
  };
  return Find(value, members);
}

std::string_view PublishedText(SelectedLoadTypes value) {
  static constexpr Member members[] = {
      {0, "Stepped Wind Load"},
      {1, "Windward"},
      {2, "Leeward"},
      {3, "A (face 1)"},
      {4, "B (face 1)"},
      {5, "C (face 1)"},
      {6, "A (face 2)"},
      {7, "B (face 2)"},
      {8, "C (face 2)"},
      {9, "A (face 3)"},
      {10, "B (face 3)"},
      {11, "C (face 3)"},
      {12, "A (face 4)"},
      {13, "B (face 4)"},
      {14, "C (face 4)"},
      {15, "AU"},
      {16, "AL"},
      {17, "A"},
      {18, "B"},
      {19, "C"},
      {20, "D"},
      {21, "E"},
      {22, "F"},
      {23, "G"},
      {24, "H"},
      {25, "i"},
      {26, "J"},
  };
  return Find(value, members);
}

}  // namespace orve
