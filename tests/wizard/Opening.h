// A model file opened for a user who sees the pointer and reads the messages.
#pragma once

#include "model/ModelFileBytes.h"
#include "support/TemporaryFolder.h"
#include "view/Platform.h"
#include "view/headless/HeadlessToolkit.h"
#include "wizard/OpenModel.h"

#include <gtest/gtest.h>

namespace Tarnwise {

class OpenModelFile : public testing::Test {
 protected:
  TemporaryFolder folder;
  std::shared_ptr<Platform> platform = std::make_shared<Platform>(std::make_shared<HeadlessToolkit>());
  WizardData data;
  std::vector<String> told;  // what the user sees and hears, in order

  OpenModelFile() {
    platform->Trace.Beep = [this] { told.emplace_back("beep"); };
    platform->Trace.Pointer = [this](int pointer) { told.push_back("pointer " + std::to_string(pointer)); };
    platform->Trace.MessageBox = [this](const String& text, int style, const String& title) {
      told.push_back(title + " " + std::to_string(style) + ": " + text);
    };
  }

  void Read(const String& path) {
    told.clear();
    ReadModelFile(data, *platform, path);
  }
  String WholeFile() { return folder.Write("model.kst", ModelFileBytes().Whole().Bytes); }

  void ExpectRefused() {
    const std::vector<String> refusal = {"beep", "KESTA 64: There are problems in accessing the relevant data.",
                                         "pointer 0"};
    EXPECT_EQ(told, refusal);
  }
  void ExpectReadQuietly() {
    const std::vector<String> quiet = {"pointer 11", "pointer 0"};
    EXPECT_EQ(told, quiet);
  }
  void ExpectEarlierModel() {
    EXPECT_EQ(data.NumAtts(), 31);
    EXPECT_EQ(data.AttName(30), "name 30");
    EXPECT_EQ(data.RJType(), "DEA_DIRECT");
  }
};

}  // namespace Tarnwise
