// A case on the built-in engines, with a settings folder of its own.
#pragma once

#include <memory>

#include "BuiltInEngines.h"
#include "orve3_bs6399_2.h"
#include "private_folder.h"

namespace orve::test {

class BuiltInCase : public testing::Test {
 protected:
  BuiltInCase() {
    RegisterBuiltInEngines();
    windCase = CreateCurrentCase();
    windCase->Initialize_BreApps();
  }

  examples::PrivateFolder folder;
  std::shared_ptr<clsCurrentCase> windCase;
};

}  // namespace orve::test
