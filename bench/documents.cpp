// SPDX-License-Identifier: MIT
// Importing documents, and printing an exam into a PDF file, compared with LibreOffice's conversions of the
// same documents to text and to PDF.
#include "BenchArguments.h"
#include "RatioReporter.h"
#include "cli/CommandLine.h"
#include "platform/programs/OfficeConverter.h"
#include "support/DocxBuilder.h"

#include <filesystem>
#include <fstream>
#include <gd.h>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using namespace quorvantis;

constexpr int kMostQuestions = 500;
constexpr int kPictures = 200;

fs::path folder;

/// A picture the size of a screenshot, with pixels that do not compress well.
std::string Photo(int seed) {
  constexpr int kWidth = 640;
  constexpr int kHeight = 400;
  const std::unique_ptr<gdImage, void (*)(gdImage*)> image(gdImageCreateTrueColor(kWidth, kHeight),
                                                           gdImageDestroy);
  unsigned state = static_cast<unsigned>(seed);
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < kWidth; ++x) {
      state = state * 1664525U + 1013904223U;
      gdImageSetPixel(image.get(), x, y, gdTrueColor(x % 256, y % 256, static_cast<int>(state >> 28U)));
    }
  }
  int size = 0;
  const std::unique_ptr<void, void (*)(void*)> bytes(gdImagePngPtr(image.get(), &size), gdFree);
  return {static_cast<const char*>(bytes.get()), static_cast<std::size_t>(size)};
}

void WriteDocument(const fs::path& file, int questions, int pictures) {
  test::DocxBuilder builder;
  std::string body;
  const auto add = [&body](const std::string& text, const std::string& more = {}) {
    body += "<w:p><w:r><w:t xml:space=\"preserve\">" + text + "</w:t></w:r>" + more + "</w:p>";
  };
  for (int n = 1; n <= questions; ++n) {
    std::string picture;
    if (n <= pictures) {
      const std::string id = "p" + std::to_string(n);
      builder.Picture(id, Photo(n));
      picture = test::DocxBuilder::PictureXml(id);
    }
    add(std::to_string(n) + ". Which of these statements about the water cycle is true, and which is not?",
        picture);
    for (const char* option : {"A. Rain falls up.", "B. The sun is cold.", "C. Clouds hold water."})
      add(option);
    add("Answer: C");
  }
  builder.Body(body).Write(file);
}

/// A document and how many questions it holds.
struct Document {
  std::string name;
  int questions;
};

void Import(benchmark::State& state, const Document& document) {
  std::istringstream in;
  std::ostringstream out;
  cli::Console console{in, out, std::cerr};
  const std::string paper = folder / document.name;
  const std::string exam = folder / "out.exm";
  const std::string rules = folder / "rules.ini";
  const char* arguments[] = {"quorvantis-cli", "import",      paper.c_str(),  exam.c_str(),
                             "--rules",        rules.c_str(), "--repository", "#0"};
  for (auto _ : state) {
    if (cli::RunCommandLine(std::size(arguments), arguments, console) != 0) state.SkipWithError("failed");
  }
  const std::string read = std::to_string(document.questions) + " questions read: ";
  if (!out.str().starts_with(read)) state.SkipWithError(out.str().c_str());
}

void Convert(benchmark::State& state, const Document& document) {
  const OfficeConverter converter(OfficePrograms::Find(), nullptr);
  const OfficeJob job{folder / document.name, {"MS Word 2007 XML"}, "txt"};
  for (auto _ : state) {
    if (converter.Convert(job) != WordResult::Done) state.SkipWithError("LibreOffice failed");
  }
}

/// Runs a command of the command line. False if it fails.
bool Run(const std::vector<std::string>& words) {
  std::istringstream in;
  std::ostringstream out;
  cli::Console console{in, out, std::cerr};
  std::vector<const char*> arguments{"quorvantis-cli"};
  for (const std::string& word : words) arguments.push_back(word.c_str());
  return cli::RunCommandLine(static_cast<int>(arguments.size()), arguments.data(), console) == 0;
}

void MakePdf(benchmark::State& state, const Document& document) {
  const std::string exam = folder / "print.exm";
  if (!Run({"import", folder / document.name, exam, "--rules", folder / "rules.ini", "--repository", "#0"}))
    return state.SkipWithError("the exam was not made");
  for (auto _ : state) {
    if (!Run({"pdf", exam, folder / "out.pdf"})) return state.SkipWithError("failed");
  }
}

void ConvertToPdf(benchmark::State& state, const Document& document) {
  const OfficeConverter converter(OfficePrograms::Find(), nullptr);
  const OfficeJob job{folder / document.name, {"MS Word 2007 XML"}, "pdf"};
  for (auto _ : state) {
    if (converter.Convert(job) != WordResult::Done) state.SkipWithError("LibreOffice failed");
  }
}

void Register(const std::string& name, void (*run)(benchmark::State&, const Document&),
              const Document& document) {
  benchmark::RegisterBenchmark(name.c_str(), run, document)
      ->UseRealTime()
      ->Repetitions(3)
      ->Unit(benchmark::kMillisecond);
}

bench::Comparison Compare(const std::string& what, const Document& document, int pictures, double wanted) {
  WriteDocument(folder / document.name, document.questions, pictures);
  Register("import " + what, Import, document);
  Register("convert " + what, Convert, document);
  return {"import of " + what + " / LibreOffice to text", "import " + what, "convert " + what, wanted};
}

/// Needs the program for PDF files beside this one.
bench::Comparison ComparePrinting(const std::string& what, const Document& document, int pictures) {
  constexpr double kWanted = 5000;  // milliseconds
  WriteDocument(folder / document.name, document.questions, pictures);
  Register("print " + what, MakePdf, document);
  Register("print as a document " + what, ConvertToPdf, document);
  return {"PDF of " + what + " / LibreOffice to PDF", "print " + what, "print as a document " + what, kWanted,
          bench::Measure::Milliseconds};
}

}  // namespace

int main(int argumentCount, char** arguments) {
  folder = bench::TakeFolder(argumentCount, arguments) / "documents";
  fs::create_directories(folder);
  std::ofstream(folder / "rules.ini")
      << "[Repository]\nSize=1\n[0]\nName=x\nPreQuestion=\\s*^\\d+[.)]\\s*\nPreAnswer=\\s*^Answer:[ \\t]*\n"
         "Pattern=(?<Q1>.+?)\\s*^A[.)]\\s*(?<A>.+?)\\s*^B[.)]\\s*(?<B>.+?)(?:\\s*^C[.)]\\s*(?<C>.+?))?\\s*"
         "\\z\n";
  constexpr double kThird = 1.0 / 3.0;
  bench::RunComparisons(argumentCount, arguments,
                        {Compare("10 questions", {"ten.docx", 10}, 0, kThird),
                         Compare("100 questions", {"hundred.docx", 100}, 0, kThird),
                         Compare("500 questions", {"most.docx", kMostQuestions}, 0, kThird),
                         Compare("500 and 200 pictures", {"pictures.docx", kMostQuestions}, kPictures, 1.0),
                         ComparePrinting("100 and 50 pictures", {"paper.docx", 100}, 50)});
  fs::remove_all(folder);
  return 0;
}
