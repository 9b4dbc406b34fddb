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

/// Whether the exam has everything that its file holds.
enum class ReadDoubt {
  None,
  ReadInPart,  ///< the file could not be read to its end, or not at all
  PassedOver,  ///< the file holds more than an exam can have
  NoExam,      ///< nothing in the file suggests that it is an exam
};

/// The exam document: an ExamPaper, the files attached to the exam as a whole, and the operations that read
/// and write it. Each operation is defined in the folder that owns its subject. A class there does the work
/// and returns an outcome; the member only turns that into a message.
class FrameSetExam : public ExamPaper {
 public:
  /// `services` must outlive the document and its copies.
  explicit FrameSetExam(ExamServices& services);

  /// Empties the exam. `examAttachmentCopies` stays, so that the copies can still be deleted.
  void Reset();

  /// Loads an exam file of any version into this document, which the caller has reset, and unpacks the
  /// attached files into the work folder. Failures are shown to the user. Defined in examfile/.
  void ReadExamFile(const std::filesystem::path& file);

  /// The readers of older versions, in the order in which they try a file until one recognises its tag.
  /// ReadExamFile has emptied the work folder.
  void ReadExamFileV202(const std::filesystem::path& file);
  void ReadExamFile0214(const std::filesystem::path& file);
  void ReadUntaggedExamFile(const std::filesystem::path& file);

  /// Saves the exam as a current-version file; `file` is replaced only once the new one is complete. False if
  /// it could not be saved; the user has been told. With `backup` the old file is kept as a backup. Defined
  /// in examfile/.
  bool WriteExamFile(const std::filesystem::path& file, bool backup = false);

  /// Writes the preview. `page` gets the frames or, if no files are attached to the exam, the questions. What
  /// cannot be written is silently left out. Defined in render/, like the four below.
  void WritePreview(const std::filesystem::path& page);

  /// Writes the page with all questions: for the editor, or the result page while `locationMode` is 0.
  void WriteQuestionPage(const std::filesystem::path& page);
  void WriteResultPage(const std::filesystem::path& page);

  /// Writes the exam for printing.
  void WritePrintPage(const std::filesystem::path& page);

  /// Reads questions from a marked text (import/ImportMarkers.h) into the slots from `firstSlot` on, using
  /// the question pattern and the answer patterns of `rules`. `pictureNumber` is the number of the first
  /// picture. Returns the slot after the last one written, at most 501. `paper` reports what was read and
  /// what was not; if it has a failure, nothing is written. The user is told nothing. `isCancelled`, which
  /// may be empty, is polled. Defined in import/.
  int ParseQuestions(int firstSlot, int pictureNumber, const std::u16string& markedText,
                     const ImportSettings& rules, const std::function<bool()>& isCancelled, ReadPaper& paper);

  /// Not 0: pages show every path that is attached now, to the exam or to a counted question, with one more
  /// prefix, a copy of its first three characters; 0: with one fewer. Pages strip three characters to get the
  /// full path. The paths themselves never change, so no prefix can get into a file. The start and the end of
  /// a preview need not be balanced.
  void PrefixAttachmentPaths(int on);

  /// False for a display name that stands among the exam's paths (see `displayNamesAmongPaths`). The author
  /// of the exam file chose it, and it may name any file on this machine, so it must never be opened, linked
  /// or copied. Check here before using an entry of `examAttachmentPaths` as a file.
  bool IsPath(const std::u16string& entry) const;

  /// `path` as pages see it. Paths of up to three characters get no prefix.
  std::u16string PathOnPages(const std::u16string& path) const;

  ExamServices& Services() const { return *services_; }

  int firstOralQuestion = 0;  ///< the first oral question that the reader found, 0 if none
  int boundaryQuestion = 0;   ///< a question number stored in the exam file, 0 if none
  int examFilesUnpacked = 0;  ///< 1 if the reader unpacked exam-level files
  AttachmentList examAttachmentPaths;
  AttachmentList examAttachmentNames;
  AttachmentList examAttachmentCopies;
  /// Texts in `examAttachmentPaths` that are not paths. They got there when an entry of a full list was
  /// removed.
  std::vector<std::u16string> displayNamesAmongPaths;
  std::array<int, kMaxAttachments>
      examAttachmentTypes{};  ///< number of the preview frame that shows each file
  AttachmentPageWriter attachmentPageWriter;
  /// By attachment path: the number of previews that showed it and were not finished. Other paths are not
  /// listed.
  std::map<std::u16string, int> previewPrefixes;
  /// Paths of attached files without content: no file exists there, and none is missing.
  std::set<std::u16string> pathsWithoutContent;
  std::shared_ptr<const ExamReadOutcome> lastRead;  ///< type defined in examfile/; null before the first read
  ReadDoubt readDoubt = ReadDoubt::None;
  int filesNotUnpacked = 0;  ///< attached files that the last read could not create
  int hasOralQuestion = 0;   ///< 1 if the reader found an oral question

 private:
  ExamServices* services_;
};

}  // namespace quorvantis
