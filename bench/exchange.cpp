// SPDX-License-Identifier: MIT
// Converting an exam into the files of learning systems and back, compared with libraries that read such a
// file and write it again.
#include "BenchArguments.h"
#include "RatioReporter.h"
#include "cli/CommandLine.h"
#include "exchange/xml/Base64.h"

#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <memory>
#include <pugixml.hpp>
#include <random>
#include <sstream>
#include <string>
#include <vector>
#include <zip.h>

namespace {

namespace fs = std::filesystem;
using namespace quorvantis;

constexpr int kQuestions = 500;
constexpr int kPictures = 200;
constexpr std::size_t kPictureBytes = 100'000;
constexpr double kWanted = 2000;  // milliseconds

fs::path folder;

std::string Picture(std::mt19937& random) {
  std::string bytes(kPictureBytes, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random());
  return bytes;
}

/// The exam in a format with everything, from which the exam file is made.
void WriteQuiz(const fs::path& file) {
  std::mt19937 random(1);
  std::ofstream out(file);
  out << "<quiz>";
  for (int n = 1; n <= kQuestions; ++n) {
    out << "<question type='multichoice'><questiontext format='html'><text><![CDATA[Which of these "
           "statements about the water cycle is <b>true</b>, and which is not? "
        << n << "]]></text>";
    if (n <= kPictures)
      out << "<file name='picture" << n << ".png' encoding='base64'>" << ToBase64(Picture(random))
          << "</file>";
    out << "</questiontext><single>true</single>";
    for (const char* option : {"Rain falls up.", "The sun is cold.", "Clouds hold water.", "Ice sinks."})
      out << "<answer fraction='" << (*option == 'C' ? 100 : 0) << "'><text>" << option << "</text></answer>";
    out << "</question>";
  }
  out << "</quiz>";
}

bool Convert(const fs::path& from, const fs::path& to, const std::string& option, const std::string& format) {
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream ignored;
  cli::Console console{in, out, ignored};
  const std::string source = from;
  const std::string target = to;
  const char* arguments[] = {"quorvantis-cli", "convert",      source.c_str(),
                             target.c_str(),   option.c_str(), format.c_str()};
  return cli::RunCommandLine(static_cast<int>(std::size(arguments)), arguments, console) == 0;
}

struct ZipCloser {
  void operator()(zip* archive) const { zip_discard(archive); }
};

bool CopyZip(const fs::path& file, const fs::path& copy) {
  const std::unique_ptr<zip, ZipCloser> source(zip_open(file.c_str(), ZIP_RDONLY, nullptr));
  zip* const target = zip_open(copy.c_str(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
  if (!source || target == nullptr) return false;
  std::vector<std::string> parts(static_cast<std::size_t>(zip_get_num_entries(source.get(), 0)));
  for (std::size_t i = 0; i < parts.size(); ++i) {
    zip_stat_t part;
    zip_stat_index(source.get(), i, 0, &part);
    parts[i].resize(part.size);
    zip_file_t* const opened = zip_fopen_index(source.get(), i, 0);
    zip_fread(opened, parts[i].data(), part.size);
    zip_fclose(opened);
    const zip_int64_t added = zip_file_add(
        target, part.name, zip_source_buffer(target, parts[i].data(), parts[i].size(), 0), ZIP_FL_OVERWRITE);
    if (part.comp_method == ZIP_CM_STORE)
      zip_set_file_compression(target, static_cast<zip_uint64_t>(added), ZIP_CM_STORE, 0);
  }
  return zip_close(target) == 0;
}

bool CopyXml(const fs::path& file, const fs::path& copy) {
  pugi::xml_document document;
  return document.load_file(file.c_str()) && document.save_file(copy.c_str());
}

bool CopyText(const fs::path& file, const fs::path& copy) {
  return fs::copy_file(file, copy, fs::copy_options::overwrite_existing);
}

struct Row {
  std::string format;
  std::string extension;
  std::string peer;
  bool (*copy)(const fs::path& file, const fs::path& copy);
};

void Register(const std::string& name, const std::function<bool()>& run) {
  benchmark::RegisterBenchmark(name.c_str(),
                               [run](benchmark::State& state) {
                                 for (auto _ : state) {
                                   if (!run()) return state.SkipWithError("failed");
                                 }
                               })
      ->UseRealTime()
      ->Repetitions(5)
      ->Unit(benchmark::kMillisecond);
}

/// Exporting and importing in one format.
void Add(const Row& row, std::vector<bench::Comparison>& comparisons) {
  const fs::path file = folder / ("file." + row.extension);
  const std::string out = "to " + row.format;
  const std::string back = "from " + row.format;
  const std::string copy = "copy " + row.format;
  if (!Convert(folder / "exam.exm", file, "--to", row.format)) std::cerr << row.format << " failed\n";
  Register(out, [row, file] {
    return Convert(folder / "exam.exm", fs::path(file) += ".new", "--to", row.format);
  });
  Register(back, [row, file] { return Convert(file, folder / "back.exm", "--from", row.format); });
  Register(copy, [row, file] { return row.copy(file, folder / "copy"); });
  const auto isMilliseconds = bench::Measure::Milliseconds;
  comparisons.push_back(
      {"500 and 200 pictures " + out + " / " + row.peer, out, copy, kWanted, isMilliseconds});
  comparisons.push_back(
      {"500 and 200 pictures " + back + " / " + row.peer, back, copy, kWanted, isMilliseconds});
}

}  // namespace

int main(int argumentCount, char** arguments) {
  folder = bench::TakeFolder(argumentCount, arguments) / "exchange";
  fs::create_directories(folder);
  WriteQuiz(folder / "quiz.xml");
  if (!Convert(folder / "quiz.xml", folder / "exam.exm", "--from", "moodle")) return 1;
  std::vector<bench::Comparison> comparisons;
  for (const Row& row :
       {Row{"moodle", "xml", "pugixml, copy", CopyXml}, Row{"qti", "qti.zip", "libzip, copy", CopyZip},
        Row{"canvas", "canvas.zip", "libzip, copy", CopyZip}, Row{"gift", "gift", "copy", CopyText},
        Row{"csv", "csv", "copy", CopyText}})
    Add(row, comparisons);
  bench::RunComparisons(argumentCount, arguments, std::move(comparisons));
  fs::remove_all(folder);
  return 0;
}
