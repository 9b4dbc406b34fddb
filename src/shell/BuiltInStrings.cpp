// SPDX-License-Identifier: MIT
#include "shell/BuiltInStrings.h"

#include "platform/Texts.h"

#include <algorithm>
#include <iterator>

namespace quorvantis {
namespace {

struct NumberedText {
  int number;
  std::u16string_view text;
};

// Wording and spelling are what users of the program know; both stay as they are.
constexpr NumberedText kTexts[] = {
    {text_id::kAbout, u"Oxna Quorvantis(&A)..."},
    {text_id::kOpenFileError, u"Open file %s error!"},
    {text_id::kTemporaryFileError, u"create temporary file error"},
    {text_id::kNoWordProcessor, u"Create dispatch failed.Please first to setup Office2000!"},
    {text_id::kSaveQuestion, u"File '%s' Changed.\nSave File ?"},
    {text_id::kOpenExamFilter, u"Exam files, (*.exm)|*.exm|"},
    {text_id::kWindowTitle, u"Quorvantis - %s"},
    {text_id::kRandomOptions, u"Random(option)"},
    {text_id::kRandomSequence, u"Random(sequence)"},
    {text_id::kRandom, u"Random"},
    {text_id::kLanguage, u"Language"},
    {text_id::kSelectLanguage, u"Select Language"},
    {text_id::kOk, u"OK"},
    {text_id::kScoreDistribution, u"Score Distribution"},
    {text_id::kQuestion, u"Question"},
    {text_id::kScore, u"score"},
    {text_id::kSameScores, u"Each question has the same scores"},
    {text_id::kExported, u"Save as *.Doc Success!"},
    {text_id::kTitle, u"Title:"},
    {text_id::kEditArea, u"Edit Area"},
    {text_id::kChoice, u"Choice"},
    {text_id::kFillIn, u"Fill in"},
    {text_id::kEssay, u"Essay"},
    {text_id::kOral, u"Oral"},
    {text_id::kAttachFiles, u"Attach Files"},
    {text_id::kBackward10, u"Backward 10 questions"},
    {text_id::kPrevious, u"Previous question"},
    {text_id::kForward10, u"Forward 10 questions"},
    {text_id::kNext, u"Next question"},
    {text_id::kDeleteQuestion, u"Delete question"},
    {text_id::kInsertQuestion, u"Insert question"},
    {text_id::kAttachToQuestion, u"Attached file to question"},
    {text_id::kNew, u"New"},
    {text_id::kOpen, u"Open"},
    {text_id::kSave, u"Save"},
    {text_id::kSaveAs, u"Save As"},
    {text_id::kPreview, u"Preview"},
    {text_id::kScoreSettings, u"Score settings"},
    {text_id::kPrint, u"Print"},
    {text_id::kListSeparatorTip, u"Insert ans\\' list separator \\\"<@>\\\""},
    {text_id::kFinishExam, u"Finish Exam"},
    {text_id::kSaveExamFilter, u"Exam files (*.exm)|*.exm|Word files (*.doc)|*.doc|"},
    {text_id::kAttachmentFilter,
     u"Text files(*.doc,*.docx,*.ppt,*.pptx,*.xls,*.xlsx,*.txt)|*.doc;*.docx;*.ppt;*.pptx;*.xls;*.xlsx;*.txt|"
     u"Picture files(*.jpg;*.jpeg;*.bmp;*.gif)|*.jpg;*.jpeg;*.bmp;*.gif|"
     u"Mutimedia files(*.wav;*.mp3;*.wmv;*.wma;*.avi;*.mpeg;*.dat;*.asf)|"
     u"*.wav;*.mp3;*.wmv;*.wma;*.avi;*.mpeg;*.dat;*.asf|"
     u"flash files(*.swf)|*.swf|"},
    {text_id::kYourScoreIs, u"Your score is"},
    {text_id::kCorrectAnswerIs, u"Correct answer is"},
    {text_id::kYourAnswerIs, u"Your answer is"},
    {text_id::kOralSubject, u"(Oral subject)"},
    {text_id::kOralByTeacher, u"(Oral question,controled by teacher)"},
    {text_id::kAssignedScore, u"Assigned Score"},
    {text_id::kScoreGroup, u"Score Distribution"},
    {text_id::kImportFilter, u"Doc files, (*.doc)|*.doc|"},
    {text_id::kRangeQuestion, u"Question"},
    {text_id::kRangeTo, u"to"},
    {text_id::kRangeScore, u"Score="},
    {text_id::kMinimumQuestions, u"Minimum questions(1-500)"},
    {text_id::kCancel, u"Scan questions"},  // deliberate: Cancel buttons read so without a language library
    {text_id::kScanQuestions, u"Scan questions"},
    {text_id::kLanguageName, u"English"},
    {text_id::kCloseOffice, u"Close Ms Office?"},
    {text_id::kImportExam, u"Import Exam"},
    {text_id::kPictureNotice, u"(Can not show the picture)"},
    {text_id::kWrongDocumentPath, u"The Document file path is wrong!"},
    {text_id::kWrongImportRules, u"There is something wrong in file ImportExam.ini"},
    {text_id::kPicturesInAnswers, u"The answer in the exam have pictures,can not display"},
    {text_id::kNotice, u"clew"},
    {text_id::kOralOff, u"Play video sound"},
    {text_id::kOralOn, u"Mute video sound"},
    {text_id::kExamEndsEarly,
     u"The exam file ends before its contents do; question %d and after are missing."},
    {text_id::kExamFilesEndEarly, u"The exam file ends before its contents do; attached files are missing."},
    {text_id::kCannotExport,
     u"%s was not written: the word processor made no document of it. Is there room for its temporary "
     u"files?"},
    {text_id::kAnswer, u"Ans"},
    {text_id::kPreparing, u"Preparing %s\u2026"},
    {text_id::kCannotShow, u"%s cannot be shown here."},
    {text_id::kFileMissing, u"%s is missing."},
    {text_id::kNeedsProgram, u"%s cannot be shown, because %s is not installed."},
    {text_id::kFirstPagesOnly, u"Only the first %s pages are shown."},
    {text_id::kBeginningOnly, u"Only the beginning is shown."},
    {text_id::kTooLong, u"Not changed: this field takes at most %d characters."},
    {text_id::kSaveCopy, u"Save a copy\u2026"},
    {text_id::kRemoveAttachment, u"Remove"},
    {text_id::kNoProgramOpens, u"No program was found that opens %s."},
    {text_id::kIsRightAnswer, u"%s is a right answer"},
    {text_id::kTotalScore, u"Total score: %s"},
    {text_id::kNoQuestions, u"The exam has no questions yet."},
    {text_id::kRecoveryQuestion,
     u"This exam was not saved:\n\nTitle: %s\nQuestions: %s\nFile: %s\nLast change: %s\n\nRestore it?"},
    {text_id::kRestore, u"Restore"},
    {text_id::kDiscard, u"Discard"},
    {text_id::kLater, u"Later"},
    {text_id::kRecoveryDamaged,
     u"The copy of an exam that was not saved is damaged. It has been put aside:\n%s"},
    {text_id::kRecoveryFilesLost, u"These attached files could not be restored: %s"},
    {text_id::kRecoveryFails, u"No safety copy of your changes can be made. Save the exam soon."},
    {text_id::kQuestionsRead,
     u"{1:%s question|%s questions} read: %s choice, %s true/false, %s fill-in, %s essay."},
    {text_id::kSlotsFilled, u"{1:It is question|They are questions} %s of the exam."},
    {text_id::kQuestionsReplaced,
     u"{1:A question that was there before and is replaced or gone|Questions that were there before and are "
     u"replaced or gone}: %s."},
    {text_id::kLeftOut,
     u"{1:The last one of them was|The last %s of them were} left out: an exam has %s questions at most."},
    {text_id::kRuleIsNoPattern, u"The rule \"%s\" is no pattern: %s, at character %s."},
    {text_id::kNoSuchTable,
     u"The repository is for papers that are tables, and there is no table with its columns."},
    {text_id::kRuleIsIdle, u"The rule \"%s\" matched nothing in the paper."},
    {text_id::kPartsLeftOut,
     u"{1:%s part of the paper was|%s parts of the paper were} left out because the rule \"%s\" matched "
     u"nothing there; {1:it|the first} begins: %s"},
    {text_id::kUnanswered,
     u"{1:%s fill-in or essay question has|%s fill-in and essay questions have} no answer, because the paper "
     u"has its answers in one place."},
    {text_id::kAllTrueFalse,
     u"Every question without a group \"Q1\" was read as a true/false question, because the paper has a "
     u"block of their answers."},
    {text_id::kAnswersDiffer,
     u"The rule \"%s\" found {1:%s answer|%s answers} for {1:%s question|%s questions}."},
    {text_id::kOwnMarker, u"The paper itself holds \"%s\", which import takes for a mark of its own."},
    {text_id::kLineEnds,
     u"{1:%s question has|%s questions have} line ends after which pages leave out a character."},
    {text_id::kFormulasMasked,
     u"{1:%s formula cannot be kept; \"##\" stands in its place|%s formulas cannot be kept; \"##\" stands in "
     u"their places}."},
    {text_id::kFormulasAdjacent,
     u"Formulas stand side by side in the paper; three of them look like the mark of a picture."},
    {text_id::kPicturesLost, u"{1:A picture|Pictures} that could not be read (%s): %s."},
    {text_id::kGivenUp, u"The import was given up."},
    {text_id::kQuestionsRemoved,
     u"{1:One of them was|%s of them were} left out again because of pictures or formulas."},
    {text_id::kFilesStayed, u"Files of earlier questions are still attached to {1:question|questions} %s."},
    {text_id::kImportSummary, u"Import summary"},
    {text_id::kUndoImport, u"Undo import"},
    {text_id::kMendLineEnds, u"Mend line ends"},
    {text_id::kUndoAfterChanges,
     u"The exam becomes what it was before the import. What has been changed since then is lost. Undo the "
     u"import?"},
    {text_id::kEscapeCancels, u"Escape cancels."},
    {text_id::kClose, u"Close"},
    {text_id::kOtherDocuments,
     u"Other documents (*.docx;*.odt;*.rtf;*.txt;*.md)|*.docx;*.odt;*.rtf;*.txt;*.md|"},
    {text_id::kRuleEndless,
     u"Nothing was imported: the rule \"%s\" in ImportExam.ini never comes to an end, because it matches "
     u"nothing at all or the marks that replace its matches. Change it to match what stands in the paper."},
    {text_id::kRuleEmptyAnswer,
     u"Nothing was imported: the rule \"%s\" in ImportExam.ini matches empty answers. Change it to match at "
     u"least one character."},
    {text_id::kRuleTooLarge,
     u"Nothing was imported: the rule \"%s\" in ImportExam.ini needs too much memory. Make it simpler."},
    {text_id::kDocumentNotFound, u"%s: there is no such file."},
    {text_id::kDocumentNoAccess, u"%s: cannot be read."},
    {text_id::kDocumentUnknown,
     u"%s: is no document that can be imported (.doc, .docx, .odt, .rtf, .txt or .md)."},
    {text_id::kDocumentDamaged, u"%s: is damaged and cannot be read."},
    {text_id::kDocumentLocked, u"%s: is protected by a password; save it without one first."},
    {text_id::kDocumentTooLarge, u"%s: is too large to be imported."},
    {text_id::kDocumentTimedOut, u"%s: the word processor took too long to read it and was ended."},
    {text_id::kDocumentTooDeep,
     u"%s: has tables or other parts within each other too many times to be imported."},
    {text_id::kPictureElsewhere,
     u"the document only {1:refers to it or draws it|refers to them or draws them}"},
    {text_id::kPictureUnknown, u"of an unknown kind"},
    {text_id::kPictureDamaged, u"damaged"},
    {text_id::kPictureTooLarge, u"too large"},
    {text_id::kPictureNotDrawn, u"no word processor is there to draw {1:it|them}"},
    {text_id::kPictureTimedOut, u"drawing {1:it|them} took too long"},
    {text_id::kPictureNoFile, u"{1:its file|their files} could not be written"},
    {text_id::kPicturesOfQuestion, u"%s of question %s"},
    {text_id::kQuestionAsItIs,
     u"Question %s is imported as it is, with the names of its pictures in its texts: an import that begins "
     u"with question 1 does not look at the pictures and formulas of its first question."},
    {text_id::kAnswersByOrder,
     u"Answers go to the questions in their order, whatever their numbers are; of the rule \"%s\", the "
     u"answer with number %s went to question %s of the paper."},
    {text_id::kAutomaticNumbers,
     u"The document has automatic numbers, which are not part of its text. With ListLabels=1 in its section "
     u"of ImportExam.ini, the repository reads them."},
    {text_id::kOfQuestion, u"question %s: %s"},
    {text_id::kTextCut, u"%s is cut from %s to {1:%s character|%s characters}"},
    {text_id::kTextEndsAtNul, u"%s ends at its first NUL character"},
    {text_id::kNumberCut, u"%s %s is cut to four characters"},
    {text_id::kNotForKind, u"%s is not kept for a question of this kind"},
    {text_id::kScoreRounded, u"a score is rounded to %s"},
    {text_id::kOralFlagLost, u"the oral flag is not kept without an attached file"},
    {text_id::kOralFlagChanged, u"an oral flag that is not 1 is kept as 0"},
    {text_id::kQuestionNotStored,
     u"is not stored: neither it nor a later question has a text, an option or a fill-in answer"},
    {text_id::kFileStoredEmpty, u"the attached file %s is gone and is stored empty"},
    {text_id::kReadInPart, u"the file was read in part only; what was not read is gone"},
    {text_id::kNoExamFile, u"the file does not look like an exam; an exam takes its place"},
    {text_id::kTheTitle, u"the title"},
    {text_id::kTheText, u"the text"},
    {text_id::kOptionText, u"an option text"},
    {text_id::kAnswerLetters, u"the answer letters"},
    {text_id::kFillInAnswer, u"the fill-in answer"},
    {text_id::kEssayAnswer, u"the essay answer"},
    {text_id::kAttachmentName, u"the name of an attached file"},
    {text_id::kAScore, u"a score"},
    {text_id::kTheKind, u"the kind"},
    {text_id::kTheRandomMode, u"the random mode"},
    {text_id::kTheScoreMode, u"the score mode"},
    {text_id::kBoundaryQuestion, u"the boundary question"},
    {text_id::kRangeStart, u"the start of a score range"},
    {text_id::kRangeEnd, u"the end of a score range"},
    {text_id::kSavingLoses, u"Saving loses something:"},
    {text_id::kStoreWhole, u"Store as much as possible"},
    {text_id::kSaveAnyway, u"Save anyway"},
    {text_id::kGoBack, u"Go back"},
    {text_id::kPlaceholderText, u"(question without a text)"},
    {text_id::kChangedOnDisk,
     u"the file has been changed by another program since it was opened here; what that wrote is gone"},
    {text_id::kExportTimedOut,
     u"%s was not written: the word processor took too long and was ended. Please try again."},
    {text_id::kExportCancelled, u"%s was not written, because it was cancelled."},
    {text_id::kCannotWrite, u"%s cannot be written: %s"},
};

}  // namespace

std::u16string BuiltInStrings::Text(int number) const {
  const auto* found = std::ranges::find(kTexts, number, &NumberedText::number);
  return found == std::end(kTexts) ? std::u16string() : std::u16string(found->text);
}

std::vector<int> BuiltInStrings::Numbers() {
  std::vector<int> numbers;
  std::ranges::transform(kTexts, std::back_inserter(numbers), &NumberedText::number);
  return numbers;
}

}  // namespace quorvantis
