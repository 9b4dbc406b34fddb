// SPDX-License-Identifier: MIT
// The pattern matcher compared with other engines: all matches in a paper of 1 MB, for patterns from import
// rules.
#include "RatioReporter.h"
#include "regex/RegexPattern.h"

#include <benchmark/benchmark.h>

#include <boost/regex.hpp>
#include <memory>
#include <regex>

#define PCRE2_CODE_UNIT_WIDTH 16
#include <pcre2.h>

namespace quorvantis::bench {
namespace {

struct Rule {
  const char* name;
  const char16_t* pattern;
};

constexpr Rule kRules[] = {{"question number", u"\\d{1,3}\\s*[.、]"},
                           {"answer label", u"(Answer|答案)\\s*[:：]\\s*"},
                           {"picture", u"\\s\\d+\\.bmp\\s"},
                           {"option", u"\\s[A-E]\\s*\\.\\s*"},
                           {"question", u"(.*?)A\\.(.*?)B\\.(.*?)C\\.(.*?)D\\.(.*?)Answer"}};

std::u16string Paper() {
  std::u16string paper;
  for (int number = 1; paper.size() < 1'000'000; ++number) {
    for (const char digit : std::to_string(number % 500 + 1)) paper += static_cast<char16_t>(digit);
    paper +=
        u". Which of these statements about the water cycle is true?\r A. Rain falls up. B. The sun is cold. "
        u"C. Clouds hold water. D. None of these.\rAnswer: C\r";
  }
  return paper;
}

const std::u16string& OnePaper() {
  static const std::u16string paper = Paper();
  return paper;
}

/// "." matches line breaks in rules; for this peer that takes a character class.
std::wstring ForStandard(std::u16string_view pattern) {
  std::wstring text;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    const bool any = pattern[i] == u'.' && (i == 0 || pattern[i - 1] != u'\\');
    text += any ? std::wstring(L"[\\s\\S]") : std::wstring(1, static_cast<wchar_t>(pattern[i]));
  }
  return text;
}

void Ours(benchmark::State& state, const Rule& rule) {
  const RegexPattern pattern(rule.pattern, 3);
  for (auto _ : state) {
    for (int start = 0; start >= 0;) start = pattern.Match(OnePaper(), start).GroupEnd(0);
  }
}

struct Freed {
  void operator()(pcre2_code* code) const { pcre2_code_free(code); }
  void operator()(pcre2_match_data* data) const { pcre2_match_data_free(data); }
};

void Pcre2(benchmark::State& state, const Rule& rule, bool compiled) {
  int error = 0;
  PCRE2_SIZE place = 0;
  const std::unique_ptr<pcre2_code, Freed> code(
      pcre2_compile(reinterpret_cast<PCRE2_SPTR>(rule.pattern), PCRE2_ZERO_TERMINATED,
                    PCRE2_DOTALL | PCRE2_MULTILINE, &error, &place, nullptr));
  if (compiled && pcre2_jit_compile(code.get(), PCRE2_JIT_COMPLETE) != 0) state.SkipWithError("no JIT here");
  const std::unique_ptr<pcre2_match_data, Freed> data(
      pcre2_match_data_create_from_pattern(code.get(), nullptr));
  const auto* text = reinterpret_cast<PCRE2_SPTR>(OnePaper().data());
  for (auto _ : state) {
    PCRE2_SIZE start = 0;
    while (pcre2_match(code.get(), text, OnePaper().size(), start, 0, data.get(), nullptr) > 0) {
      start = pcre2_get_ovector_pointer(data.get())[1];
    }
  }
}

void Interpreted(benchmark::State& state, const Rule& rule) {
  Pcre2(state, rule, false);
}

void Compiled(benchmark::State& state, const Rule& rule) {
  Pcre2(state, rule, true);
}

void Boost(benchmark::State& state, const Rule& rule) {
  const std::u16string pattern = rule.pattern;
  const boost::wregex compiled(std::wstring(pattern.begin(), pattern.end()));
  const std::wstring paper(OnePaper().begin(), OnePaper().end());
  for (auto _ : state) {
    for (boost::wsregex_iterator match(paper.begin(), paper.end(), compiled), end; match != end; ++match) {
    }
  }
}

void Standard(benchmark::State& state, const Rule& rule) {
  const std::wregex compiled(ForStandard(rule.pattern));
  const std::wstring paper(OnePaper().begin(), OnePaper().end());
  for (auto _ : state) {
    for (std::wsregex_iterator match(paper.begin(), paper.end(), compiled), end; match != end; ++match) {
    }
  }
}

using Body = void (*)(benchmark::State&, const Rule&);

void Register(const std::string& engine, const Rule& rule, Body body) {
  RegisterTimed(engine + ", " + rule.name, [body, &rule](benchmark::State& state) { body(state, rule); });
}

}  // namespace
}  // namespace quorvantis::bench

int main(int argumentCount, char** arguments) {
  using namespace quorvantis::bench;
  std::vector<Comparison> comparisons;
  for (const Rule& rule : kRules) {
    const std::string name = rule.name;
    Register("ours", rule, Ours);
    Register("PCRE2", rule, Interpreted);
    Register("PCRE2 with JIT", rule, Compiled);
    Register("Boost", rule, Boost);
    Register("std", rule, Standard);
    comparisons.push_back({name + " / PCRE2 without JIT", "ours, " + name, "PCRE2, " + name, 1.0});
    comparisons.push_back(
        {name + " / PCRE2 with JIT", "ours, " + name, "PCRE2 with JIT, " + name, std::nullopt});
    comparisons.push_back({name + " / Boost.Regex", "ours, " + name, "Boost, " + name, 0.8});
    comparisons.push_back({name + " / std::regex", "ours, " + name, "std, " + name, 0.2});
  }
  RunComparisons(argumentCount, arguments, std::move(comparisons));
}
