// SPDX-License-Identifier: MIT
#include "cli/options/SeedOption.h"

#include "cli/options/CommandOptions.h"

#include <charconv>
#include <random>
#include <string>
#include <system_error>

namespace quorvantis::cli {

void AddSeedOption(CLI::App& command, std::optional<std::uint64_t>& seed, const char* description) {
  const auto take = [&seed](const std::string& digits) {
    std::uint64_t number = 0;
    const char* const end = digits.data() + digits.size();
    const auto [last, error] = std::from_chars(digits.data(), end, number);
    if (error != std::errc() || last != end) throw CLI::ValidationError("--seed", digits + " is too large");
    seed = number;
  };
  command.add_option_function<std::string>("--seed", take, description)->type_name("S")->check(IsDecimal());
}

std::uint64_t RandomSeed() {
  constexpr std::uint64_t kSeeds = 1'000'000'000;
  std::random_device device;
  return (static_cast<std::uint64_t>(device()) << 32 | device()) % kSeeds;
}

}  // namespace quorvantis::cli
