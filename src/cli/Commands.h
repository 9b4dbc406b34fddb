// SPDX-License-Identifier: MIT
// The commands of quorvantis-cli, one function each. A command throws CommandError when it fails.
#pragma once

#include "cli/ExamSession.h"
#include "cli/ScoreSteps.h"
#include "platform/Sheet.h"
#include "versions/VersionRequest.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace quorvantis::cli {

enum class ShowForm { Text, Json, Table };

/// Lists an exam: readable text, one JSON object, or a table with a line for each question.
void Show(Console& console, const CommonOptions& options, const std::filesystem::path& exam, ShowForm form);

/// Makes an exam file from a JSON description.
void Build(Console& console, const CommonOptions& options, const std::filesystem::path& description,
           const std::filesystem::path& target);

/// Copies the attached files of an exam into a folder.
void Unpack(Console& console, const CommonOptions& options, const std::filesystem::path& exam,
            const std::filesystem::path& folder);

/// The arguments of `preview`.
struct PreviewRequest {
  std::filesystem::path exam;
  std::filesystem::path folder;                    ///< the application folder
  std::optional<std::string> student;              ///< number of a student, to write that student's pages
  std::optional<std::filesystem::path> responses;  ///< the student's answers
};

/// Writes the pages of a preview.
void Preview(Console& console, const CommonOptions& options, const PreviewRequest& request);

/// Writes the page for printing; with `afterPreview`, as it is after a preview in the same run.
void Print(Console& console, const CommonOptions& options, const std::filesystem::path& exam,
           const std::filesystem::path& folder, bool afterPreview);

/// Which sheet of an exam is wanted.
struct SheetChoice {
  std::optional<Sheet> sheet;
  bool largePrint = false;
};

/// Writes the page of a sheet into the application folder; of the paper if no sheet is chosen.
void PrintSheet(Console& console, const CommonOptions& options, const std::filesystem::path& exam,
                const std::filesystem::path& folder, const SheetChoice& choice);

/// Makes a PDF file of a sheet.
void MakePdf(Console& console, const CommonOptions& options, const std::filesystem::path& exam,
             const std::filesystem::path& target, const SheetChoice& choice);

/// Prints the keys of all questions: a line for each, or a file for spreadsheets.
void PrintKey(Console& console, const CommonOptions& options, const std::filesystem::path& exam, bool asCsv);

/// Takes an exam through the score setup, accepts it and saves the exam as `target`.
void Score(Console& console, const CommonOptions& options, const std::filesystem::path& exam,
           const std::filesystem::path& target, const std::vector<ScoreStep>& steps);

/// Writes an exam as a document for paper. The extension of `target` (doc, docx or pdf) decides its format.
void Export(Console& console, const CommonOptions& options, const std::filesystem::path& exam,
            const std::filesystem::path& target);

/// The arguments of `convert`.
struct ConvertRequest {
  std::filesystem::path source;
  std::filesystem::path target;
  std::string from;       ///< the name of a format; empty to recognise it
  std::string to;         ///< likewise; empty for that of the extension
  bool isStrict = false;  ///< whether to write nothing if something would be lost
};

/// Converts between exams and the files of learning systems. Tells on standard error what is lost, a line
/// each.
void Convert(Console& console, const CommonOptions& options, const ConvertRequest& request);

/// The names of the formats that can be read, or that can be written, with commas between them.
std::string ReadableFormats();
std::string WritableFormats();

/// Runs an editing script, from a file or from the console. With `keepsRecovery` there is a recovery copy in
/// the application folder after each line that leaves something unsaved.
void Edit(Console& console, const CommonOptions& options, const std::optional<std::filesystem::path>& script,
          bool keepsRecovery);

/// Lists the recovery copies in the application folder, or, when `copy` is the name of one, saves its exam as
/// `target`. The copy is kept.
void Recover(Console& console, CommonOptions options, const std::string& copy,
             const std::filesystem::path& target);

/// Lists the installed language libraries.
void ListLanguages(Console& console, const CommonOptions& options);

/// The arguments of `import`.
struct ImportRequest {
  std::filesystem::path document;
  std::filesystem::path target;
  std::filesystem::path rules;  ///< "ImportExam.ini"
  std::string repository;       ///< the beginning of its name, or "#" and the number of its section
  std::filesystem::path into;   ///< the exam to continue; empty for a new one
  int after = 0;                ///< the question after which to continue
  std::string pictures;         ///< the answer to a question of the import, empty for none; likewise:
  std::string formulas;
  bool mendLineEnds = false;         ///< whether to give imported texts line ends that pages show whole
  std::filesystem::path markedFile;  ///< for the marked text; empty for none
  std::filesystem::path textFile;    ///< for the document's text
  bool learns = false;               ///< whether to work out the rules from the paper
  std::filesystem::path marks;       ///< what a teacher says of the paper, for that; empty for none
};

/// Makes an exam from a question paper, by the rules of a repository.
void Import(Console& console, const CommonOptions& options, const ImportRequest& request);

/// The arguments of `rules learn`.
struct LearnRequest {
  std::filesystem::path paper;
  std::filesystem::path marks;  ///< empty for none
  std::string repository;       ///< the name; empty for that of the paper's file
  std::filesystem::path rules;  ///< the file to add the rules to; empty to print them
  std::filesystem::path text;   ///< for the paper's text; empty for none
};

/// Works out the rules of a paper.
void LearnRepository(Console& console, const CommonOptions& options, const LearnRequest& request);

/// The arguments of `rules check`.
struct CheckRequest {
  std::filesystem::path paper;
  std::filesystem::path rules;  ///< "ImportExam.ini"
  std::string repository;       ///< as in ImportRequest
};

/// Prints what rules make of a paper. Throws CommandError if they explain too little of it.
void CheckRepository(Console& console, const CommonOptions& options, const CheckRequest& request);

/// The arguments of `versions make`.
struct MakeVersionsRequest {
  std::filesystem::path exam;
  std::filesystem::path folder;  ///< empty for the usual one beside the exam
  VersionRequest request;
  bool hasSeed = false;  ///< otherwise a random one is taken
  bool replaces = false;
  bool printsSheets = true;
};

/// Makes shuffled versions of an exam, verifies them and prints what keeps its place and how alike they are.
void MakeVersions(Console& console, const CommonOptions& options, MakeVersionsRequest request);

/// Reads a folder of versions again. Throws CommandError if anything in it is wrong. `source` is the exam of
/// which they were made; empty for where the plan says it is.
void VerifyVersions(Console& console, const CommonOptions& options, const std::filesystem::path& folder,
                    const std::filesystem::path& source);

/// The arguments of `check`.
struct ExamCheckRequest {
  std::filesystem::path exam;
  bool json = false;
  std::vector<std::string> ignore;  ///< identifiers of rules
  bool leavesOutIgnored = false;    ///< also what was ignored in the window
};

/// Prints what the check of an exam finds. Fails if something is wrong.
void CheckExamFile(Console& console, const CommonOptions& options, const ExamCheckRequest& request);

/// The arguments of `match`: a pattern and a text, which is read from the console if none is given; or a file
/// of patterns and texts.
struct MatchRequest {
  std::optional<std::string> pattern;
  int flags = 3;
  int start = -1;
  std::optional<std::string> text;
  std::optional<std::filesystem::path> textFile;
  std::optional<std::filesystem::path> batch;  ///< a JSON object with a pattern and a text on each line
};

/// Tries patterns, and prints one JSON object for each.
void Match(Console& console, const MatchRequest& request);

}  // namespace quorvantis::cli
