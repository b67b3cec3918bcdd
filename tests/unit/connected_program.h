// The program as it stands once its layers are connected and its menus are built.
#pragma once
#include "app/commands.h"
#include "app/startup.h"
#include "model/focus.h"
#include "model/frame.h"
#include "model/upcalls.h"
#include "program_folder.h"

namespace quillane::test {

class ConnectedProgram : public InProgramFolder {
 protected:
  void SetUp() override {
    InProgramFolder::SetUp();
    ConnectLayers();
    BuildMenus();
  }
  void TearDown() override {
    upcalls() = {};
    focusHandlers() = {};
    InProgramFolder::TearDown();
  }
};

}  // namespace quillane::test
