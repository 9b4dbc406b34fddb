// SPDX-License-Identifier: MIT
#pragma once

#include "model/AttachmentPageWriter.h"
#include "model/ExamPaper.h"

#include <array>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace quorvantis {

struct ExamReadOutcome;
struct ExamServices;
struct ImportSettings;
struct ReadPaper;

/// Whether the exam is all that its file holds.
enum class ReadDoubt {
  None,
  ReadInPart,  ///< the file could not be read to its end, or not at all
  NoExam,      ///< nothing in the file tells that it is an exam
};

/// The exam document: an ExamPaper with the files attached to the exam as a whole, and the operations that
/// read and write it. Each of these is defined in the folder that owns its subject, where a class does the
/// work and returns an outcome; the member only turns the outcome into a message.
class FrameSetExam : public ExamPaper {
 public:
  /// `services` must outlive the document and its copies.
  explicit FrameSetExam(ExamServices& services);

  /// Empties the exam. `examAttachmentCopies` stays, so that the copies can still be deleted.
  void Reset();

  /// Loads an exam file of any version into this document, which the caller has reset, and unpacks its
  /// attached files into the work folder. Failures are shown to the user. Defined in examfile/.
  void ReadExamFile(const std::filesystem::path& file);

  /// The readers of older versions, in the order in which a file is handed on until one knows its tag. The
  /// work folder has been emptied by ReadExamFile.
  void ReadExamFileV202(const std::filesystem::path& file);
  void ReadExamFile0214(const std::filesystem::path& file);
  void ReadUntaggedExamFile(const std::filesystem::path& file);

  /// Saves the exam as a current-version file, replacing `file` only when the new one is complete. False when
  /// it could not be saved; the user has been told. With `backup` the old file stays under the name of a
  /// backup. Defined in examfile/.
  bool WriteExamFile(const std::filesystem::path& file, bool backup = false);

  /// Writes the preview: `page` holds the frames, or, when no files are attached to the exam, the questions.
  /// What cannot be written is left out silently. Defined in render/, as the four below.
  void WritePreview(const std::filesystem::path& page);

  /// Writes the page with all questions: the editor's, or the result page while `locationMode` is 0.
  void WriteQuestionPage(const std::filesystem::path& page);
  void WriteResultPage(const std::filesystem::path& page);

  /// Writes the exam as a paper.
  void WritePrintPage(const std::filesystem::path& page);

  /// Reads questions from a marked text (import/ImportMarkers.h) into the slots from `firstSlot` on, by the
  /// question pattern and the answer patterns of `rules`. `pictureNumber` is that of the first picture.
  /// Returns the number of the slot after the last one written, at most 501. `paper` tells what was read and
  /// what was not; with a failure in it, nothing is written. Nothing is told to the user. `isCancelled`,
  /// which may be empty, is asked now and then. Defined in import/.
  int ParseQuestions(int firstSlot, int pictureNumber, const std::u16string& markedText,
                     const ImportSettings& rules, const std::function<bool()>& isCancelled, ReadPaper& paper);

  /// Not 0: pages show every path that is attached now, to the exam or to a counted question, with one more
  /// prefix, a copy of its first three characters; 0: with one fewer. Pages take three characters off again
  /// to get a full path. The paths themselves stay as they are, so that no prefix can get into a file;
  /// Preview and its end need not be balanced.
  void PrefixAttachmentPaths(int on);

  /// False for a display name that stands among the exam's paths (see `displayNamesAmongPaths`). It comes
  /// from whoever wrote the exam file, so it must never be opened, linked or copied: it may name any file of
  /// this machine. Whoever takes an entry of `examAttachmentPaths` for a file asks here first.
  bool IsPath(const std::u16string& entry) const;

  /// `path` as pages see it. Paths of up to three characters have no prefixes.
  std::u16string PathOnPages(const std::u16string& path) const;

  ExamServices& Services() const { return *services_; }

  int firstOralQuestion = 0;  ///< the first oral question that the reader met, 0 when none
  int boundaryQuestion = 0;   ///< a question number kept in the exam file, 0 when none
  int examFilesUnpacked = 0;  ///< 1 when the reader unpacked exam-level files
  AttachmentList examAttachmentPaths;
  AttachmentList examAttachmentNames;
  AttachmentList examAttachmentCopies;
  /// Texts that got into `examAttachmentPaths` without being paths, when an entry of a full list was removed.
  std::vector<std::u16string> displayNamesAmongPaths;
  std::array<int, kMaxAttachments>
      examAttachmentTypes{};  ///< number of the preview frame that shows each file
  AttachmentPageWriter attachmentPageWriter;
  /// By attachment path, the previews that have shown it and were not finished. Others are not listed.
  std::map<std::u16string, int> previewPrefixes;
  /// Paths of attached files without content: nothing lies there, and nothing is missing.
  std::set<std::u16string> pathsWithoutContent;
  std::shared_ptr<const ExamReadOutcome> lastRead;  ///< examfile/ has the type; null before the first read
  ReadDoubt readDoubt = ReadDoubt::None;
  int filesNotUnpacked = 0;  ///< attached files that the last read could make no file of
  int hasOralQuestion = 0;   ///< 1 when the reader met an oral question

 private:
  ExamServices* services_;
};

}  // namespace quorvantis
