#pragma once
// Helpers for driving a command session in tests.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>

#include "command/cmd_Session.h"

// Runs one command line and expects it to succeed; returns its result.
inline cmd_Json cmdT_Ok(cmd_Session& s, const std::string& line) {
  cmd_Json r = s.ExecuteLine(line);
  EXPECT_TRUE(r["ok"].get<bool>()) << line << "\n -> " << r.dump();
  return r["result"];
}

// Runs one command line and expects it to fail; returns the error object.
inline cmd_Json cmdT_Fails(cmd_Session& s, const std::string& line) {
  cmd_Json r = s.ExecuteLine(line);
  EXPECT_FALSE(r["ok"].get<bool>()) << line << "\n -> " << r.dump();
  return r.contains("error") ? r["error"] : cmd_Json();
}
