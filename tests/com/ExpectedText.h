// Texts that stand beside the tests.
#pragma once

#include <string>

namespace quorvel::test {

// Fails when NAME.expected in this folder is not `text`; what it should have been compared with lies beside the test
// program as NAME.actual then.
void ExpectText(const std::string& name, const std::string& text);

// The folder of the tests' sources.
std::string SourceFolder();

}  // namespace quorvel::test
