// SPDX-License-Identifier: MIT
// Exams are untrusted: what a page cannot do.
#include "PreviewTest.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QUdpSocket>
#include <QWindow>

namespace quorvantis::test {
namespace {

/// Local servers that count connections.
class Listeners {
 public:
  Listeners() {
    tcp_.listen(QHostAddress::LocalHost);
    udp_.bind(QHostAddress::LocalHost);
    QObject::connect(&tcp_, &QTcpServer::newConnection, &tcp_, [this] { ++visits; });
    QObject::connect(&udp_, &QUdpSocket::readyRead, &udp_, [this] {
      while (udp_.hasPendingDatagrams()) udp_.readDatagram(nullptr, 0);
      ++packets;
    });
  }
  quint16 Port() const { return tcp_.serverPort(); }
  std::string Host() const { return "127.0.0.1:" + std::to_string(tcp_.serverPort()); }
  std::string PacketHost() const { return "127.0.0.1:" + std::to_string(udp_.localPort()); }

  int visits = 0;
  int packets = 0;

 private:
  QTcpServer tcp_;
  QUdpSocket udp_;
};

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size()) {
    text.replace(at, from.size(), to);
  }
  return text;
}

std::string PageOf(const char* name) {
  return ReadBytes(std::filesystem::path(QUORVANTIS_PROJECT) / "tests/preview/pages" / name);
}

class HostileTest : public PreviewTest {
 protected:
  std::filesystem::path secret = WriteBytes(folder / "secret.txt", "secret words");
};

TEST_F(HostileTest, ReadsNoFileThatIsNotOfTheExam) {
  Attach("own.txt", "words of the exam");
  std::filesystem::create_symlink(secret, app / "~TEMP" / "link.txt");
  std::filesystem::create_directory_symlink(folder.Path(), app / "~TEMP" / "out");
  WriteBytes(app / "system.txt", "secret words");
  const std::string path = secret.string();
  const std::string addresses =
      "['~TEMP/home/own.txt', '" + path + "', 'exam://app" + path + "', 'exam://other" + path +
      "', 'file://" + path +
      "', '~TEMP/link.txt', '~TEMP/out/secret.txt', '../../../secret.txt', '..%2f..%2f..%2fsecret.txt',"
      "'~TEMP/..%2f..%2fsecret.txt', '~TEMP/%2e%2e/%2e%2e/secret.txt', '..%5c..%5c..%5csecret.txt',"
      "'~TEMP%2f..%2fsystem.txt', '../../system.txt', 'view-source:file://" +
      path + "', 'filesystem:" + path + "']";
  Preview(Compose("SEE.htm", Replaced(PageOf("read-everything.htm"), "ADDRESSES", addresses)));
  EXPECT_TRUE(Becomes("document.getElementById('learned').textContent.includes('words of the exam')"));
  QTest::qWait(700);
  EXPECT_FALSE(
      Evaluate("document.getElementById('learned').textContent").toString().contains("secret words"));
}

TEST_F(HostileTest, ReachesNoServerAndOpensNoWindow) {
  Listeners listeners;
  const std::string body = Replaced(Replaced(PageOf("talk-to-servers.htm"), "HOST", listeners.Host()),
                                    "PACKETS", listeners.PacketHost());
  Preview(Compose("SEE.htm", body));
  const auto windowsBefore = QGuiApplication::allWindows().size();
  QTest::qWait(2500);
  EXPECT_EQ(listeners.visits, 0);
  EXPECT_EQ(listeners.packets, 0);
  EXPECT_EQ(QGuiApplication::allWindows().size(), windowsBefore);
  EXPECT_EQ(Evaluate("document.title").toString(), "everything tried");

  QTcpSocket visitor;
  visitor.connectToHost(QHostAddress::LocalHost, listeners.Port());
  EXPECT_TRUE(WaitFor([&] { return listeners.visits == 1; })) << "the listener hears nothing";
}

TEST_F(HostileTest, DoesNotLeaveThePreviewByNavigation) {
  Listeners listeners;
  const auto other = Compose("other.htm", "another page");
  Preview(other);
  const auto main = Compose("SEE.htm",
                            "<p id=here>here</p><a id=link href=other.htm target=_top>x</a>"
                            "<form id=form action=other.htm><input name=a></form>"
                            "<form id=post action=SEE.htm method=post><input name=a></form>");
  ShowPreview(main);
  ASSERT_TRUE(Becomes("document.getElementById('here')"));
  const std::string address = "http://" + listeners.Host();
  for (const std::string& attempt :
       {"location = '" + address + "'", std::string("location = 'other.htm'"), std::string("history.back()"),
        std::string("history.go(-2)"), std::string("location = 'data:text/html,gone'"),
        std::string("location = 'about:blank'"), std::string("location = 'file:///etc/passwd'"),
        std::string("location = 'chrome://gpu'"), std::string("document.getElementById('link').click()"),
        std::string("document.getElementById('form').submit()"),
        std::string("document.getElementById('post').submit()"), std::string("window.close()")}) {
    Evaluate(QString::fromStdString(attempt) + "; 0");
    QTest::qWait(300);
    EXPECT_EQ(Evaluate("document.getElementById('here').innerText").toString(), "here") << attempt;
    EXPECT_EQ(Page().url().fileName(), "SEE.htm") << attempt;
  }
  EXPECT_EQ(listeners.visits, 0);
  EXPECT_TRUE(Window().isVisible());
}

TEST_F(HostileTest, IsFetchedBackThreeTimesAndThenStaysBlank) {
  int loads = 0;
  NewWindow();
  QObject::connect(&Page(), &QWebEnginePage::loadFinished,
                   [&] { loads += Page().url().fileName() == "SEE.htm"; });
  ShowPreview(Compose(
      "SEE.htm", "x<script>onload = () => setTimeout(() => { location = 'about:blank' }, 200)</script>"));
  EXPECT_TRUE(WaitFor([&] { return loads >= 2; }));
  for (int before = -1; before != loads; QTest::qWait(2000)) before = loads;  // until it has settled
  EXPECT_LE(loads, 4);  // on a busy machine the page may be gone before its load is reported
  EXPECT_EQ(Page().url(), QUrl("about:blank"));
}

TEST_F(HostileTest, QuestionsToTheUserAreNotAsked) {
  Preview(Compose("SEE.htm", "x"));
  EXPECT_EQ(Evaluate("alert('a'); String(confirm('b')) + prompt('c') + open('SEE.htm')").toString(),
            "falsenullnull");
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace
}  // namespace quorvantis::test
