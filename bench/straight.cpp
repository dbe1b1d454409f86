#include "straight.h"

#include <algorithm>

namespace bench {

using namespace orve;

namespace {

struct Wind {
  std::array<float, 12> q;
  std::array<float, 12> Ca;
};

struct Worst {
  float q = 0;
  float Ca = 0;
};

using WorstByFace = std::array<Worst, 4>;

Wind ReadWind(BVe2X& component, const HeightAndDiagonal& area) {
  component.H(area.height);
  component.A(area.diagonal);
  component.Units(1);
  component.Calculate();
  Wind wind;
  for (int s = 0; s < 12; ++s) {
    wind.q[s] = static_cast<float>(component.BSGust(WindSectors(s)) / 1000.0);
    wind.Ca[s] = component.HybridCa(WindSectors(s));
  }
  return wind;
}

// The greatest q Ca within 45 degrees of a normal, the ends of the window interpolated.
Worst Search(const Wind& wind, int normal) {
  const int from = normal - 45 + 360;
  const int to = normal + 45 + 360;
  const int start = (from + 29) / 30;
  const int end = to / 30;
  float best = 0;
  Worst worst;
  for (int k = start; k <= end; ++k) {
    const int s = k % 12;
    const float product = wind.q[s] * wind.Ca[s];
    if (product > best) {
      best = product;
      worst = {wind.q[s], wind.Ca[s]};
    }
  }
  if (from % 30 == 0) return worst;
  for (const auto& [lower, angle] : {std::pair{start - 1, from}, std::pair{end, to}}) {
    const float share = static_cast<float>(angle - 30 * lower) / 30;
    const int s1 = lower % 12;
    const int s2 = (lower + 1) % 12;
    const float q = wind.q[s1] + share * (wind.q[s2] - wind.q[s1]);
    const float Ca = wind.Ca[s1] + share * (wind.Ca[s2] - wind.Ca[s1]);
    if (q * Ca > best) worst = {q, Ca};
  }
  return worst;
}

WorstByFace SearchFaces(const Wind& wind, int orientation) {
  WorstByFace worst;
  for (int face = 0; face < 4; ++face) worst[face] = Search(wind, (orientation + 270 + 90 * face) % 360);
  return worst;
}

struct InternalLoads {
  float pressure;
  float suction;
};

void SetShape(BreCpX& component, int type, float pitch, float L, float W, float H, int solidity) {
  component.TypeIndex(type);
  component.Barrel_r(0);
  component.Eaves_Pitch(0);
  component.Eaves_Radius(0);
  component.Parapet_H(0);
  component.Roof_Pitch(pitch);
  component.Dim_L(L);
  component.Dim_W(W);
  component.Dim_H(H);
  component.Dim_gap(0);
  component.Solidity(solidity);
}

NetLoads Net(BreCpX& component, const Worst& worst, const InternalLoads& internal) {
  component.Suction(false);
  const float pressureCpe = std::max(component.Cpe(), 0.0f);
  component.Suction(true);
  const float suctionCpe = std::max(-component.Cpe(), 0.0f);
  const float qCa = worst.q * worst.Ca;
  NetLoads net{0, 0};
  const auto add = [&](float external) {
    for (const float inside : {internal.pressure, -internal.suction}) {
      net.pressure = std::max(net.pressure, external - inside);
      net.suction = std::min(net.suction, external - inside);
    }
  };
  if (pressureCpe > 0) add(qCa * pressureCpe);
  if (suctionCpe > 0) add(-qCa * suctionCpe);
  return net;
}

class Sheet {
 public:
  Sheet(const PlainBuilding& building, const Components& components)
      : m_building(building),
        m_component(*components.coefficients),
        m_roof(Faces(components, building.roof)),
        m_side(Faces(components, building.side)),
        m_gable(Faces(components, building.gable)),
        m_sideParapet(Faces(components, building.sideParapet)),
        m_gableParapet(Faces(components, building.gableParapet)) {
    const WorstByFace Ca = Faces(components, building.internal);
    for (int face = 0; face < 4; ++face) {
      const float qCa = m_roof[face].q * Ca[face].Ca;
      m_internal[face] = {qCa * building.CpiPressure, qCa * building.CpiSuction};
    }
  }

  std::vector<NetLoads> Loads() {
    m_loads.reserve(128);
    for (int face = 0; face < 4; ++face) Roof(face);
    for (int face = 0; face < 4; ++face) Wall(face);
    for (int face = 0; face < 4; ++face) Parapet(face);
    return std::move(m_loads);
  }

 private:
  WorstByFace Faces(const Components& components, const HeightAndDiagonal& area) const {
    return SearchFaces(ReadWind(*components.wind, area), m_building.orientation);
  }

  template <class Visit>
  void ForEachZone(double theta, Visit visit) {
    m_component.Theta(theta);
    for (std::int16_t zone = 0; zone <= 25; ++zone) {
      m_component.ZoneIndex(zone);
      if (m_component.Valid()) visit();
    }
  }

  void Roof(int face) {
    SetShape(m_component, 4, m_building.pitch, m_building.length, m_building.width, m_building.roof.height,
             0);
    ForEachZone(90.0 * face, [&] { m_loads.push_back(Net(m_component, m_roof[face], m_internal[face])); });
  }

  void Wall(int face) {
    const bool gable = face % 2 == 1;
    const WorstByFace& worst = gable ? m_gable : m_side;
    SetShape(m_component, 0, 0, gable ? m_building.width : m_building.length,
             gable ? m_building.length : m_building.width,
             gable ? m_building.gable.height : m_building.side.height, 0);
    const auto add = [&](int windFace) {
      m_loads.push_back(Net(m_component, worst[windFace], m_internal[windFace]));
    };
    m_component.Theta(0);
    m_component.ZoneIndex(0);
    add(face);
    m_component.Theta(180);
    add((face + 2) % 4);
    m_component.Dim_gap(m_building.gaps[face]);
    ForEachZone(90, [&] { add(gable ? 0 : 1); });
    ForEachZone(270, [&] { add(gable ? 2 : 3); });
  }

  void Parapet(int face) {
    const bool gable = face % 2 == 1;
    const WorstByFace& worst = gable ? m_gableParapet : m_sideParapet;
    const float along = gable ? m_building.width : m_building.length;
    const float other = gable ? m_building.length : m_building.width;
    const bool corner = gable ? m_building.gableReturnCorner : m_building.sideReturnCorner;
    SetShape(m_component, 8, 0, along, corner ? other : 0, m_building.parapetHeight, 1);
    const auto load = [&](int windFace) {
      return worst[windFace].q * worst[windFace].Ca * m_component.Cpe();
    };
    ForEachZone(0, [&] { m_loads.push_back({load(face), 0}); });
    ForEachZone(180, [&] { m_loads.push_back({0, -load((face + 2) % 4)}); });
  }

  const PlainBuilding& m_building;
  BreCpX& m_component;
  WorstByFace m_roof, m_side, m_gable, m_sideParapet, m_gableParapet;
  std::array<InternalLoads, 4> m_internal{};
  std::vector<NetLoads> m_loads;
};

}  // namespace

std::vector<NetLoads> StraightNetLoads(const PlainBuilding& building, const Components& components) {
  return Sheet(building, components).Loads();
}

}  // namespace bench
