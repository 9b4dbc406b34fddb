// SPDX-License-Identifier: MIT
// Exams come from strangers: what a page cannot do.
#include "PreviewTest.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QUdpSocket>
#include <QWindow>

namespace quorvantis::test {
namespace {

/// Servers on this machine that count who talks to them.
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

class HostileTest : public PreviewTest {
 protected:
  std::filesystem::path secret = WriteBytes(folder / "secret.txt", "secret words");
};

/// Each address is asked for by a request, in a frame and as a script; all that is learned is gathered.
const char* const kReadEverything = R"(<div id=learned></div><script>
  const learned = text => { document.getElementById('learned').textContent += text + '\n'; };
  for (const address of ADDRESSES) {
    const request = new XMLHttpRequest();
    try {
      request.open('GET', address);
      request.onload = () => learned(request.responseText);
      request.send();
    } catch (refused) {}
    const frame = document.createElement('iframe');
    frame.onload = () => { try { learned(frame.contentDocument.body.innerText); } catch (refused) {} };
    frame.src = address;
    document.body.append(frame);
    try { fetch(address).then(answer => answer.text()).then(learned, () => {}); } catch (refused) {}
  }
</script>)";

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
  Preview(Compose("SEE.htm", Replaced(kReadEverything, "ADDRESSES", addresses)));
  EXPECT_TRUE(Becomes("document.getElementById('learned').textContent.includes('words of the exam')"));
  QTest::qWait(700);
  EXPECT_FALSE(
      Evaluate("document.getElementById('learned').textContent").toString().contains("secret words"));
}

/// Every way out of a page that is known; HOST and PACKETS are the listeners.
const char* const kTalkToServers = R"PAGE(
  <link rel=stylesheet href="http://HOST/css"><link rel=prefetch href="http://HOST/prefetch">
  <link rel=preconnect href="http://HOST"><link rel=dns-prefetch href="http://HOST">
  <img src="http://HOST/img"><iframe src="http://HOST/frame"></iframe><video src="http://HOST/video"></video>
  <object data="http://HOST/object"></object><embed src="http://HOST/embed">
  <iframe src="data:text/html,<img src=http://HOST/data><script>fetch('http://HOST/data2')</script>"></iframe>
  <iframe srcdoc="<meta http-equiv=refresh content='0;url=http://HOST/refresh'><img src=http://HOST/srcdoc>">
  </iframe>
  <a id=link ping="http://HOST/ping" href="http://HOST/link" target=_blank>x</a>
  <form id=form action="http://HOST/form" method=post target=_blank></form>
  <script>
    const attempt = action => {
      try { const done = action(); if (done && done.catch) done.catch(() => {}); } catch (refused) {}
    };
    const worker = "fetch('http://HOST/worker'); importScripts('http://HOST/import')";
    const call = frame => {
      const peer = new frame.RTCPeerConnection({iceServers: [{urls: 'stun:PACKETS'},
          {urls: 'turn:HOST?transport=tcp', username: 'x', credential: 'x'}]});
      peer.createDataChannel('x');
      return peer.createOffer().then(offer => peer.setLocalDescription(offer));
    };
    attempt(() => fetch('http://HOST/fetch', {mode: 'no-cors'}));
    attempt(() => { const x = new XMLHttpRequest(); x.open('GET', 'http://HOST/xhr'); x.send(); });
    attempt(() => navigator.sendBeacon('http://HOST/beacon', 'x'));
    attempt(() => new WebSocket('ws://HOST/socket'));
    attempt(() => new EventSource('http://HOST/events'));
    attempt(() => new Worker(URL.createObjectURL(new Blob([worker]))));
    attempt(() => navigator.serviceWorker.register('service.js'));
    attempt(() => new WebTransport('https://PACKETS/transport').ready);
    attempt(() => call(window));
    attempt(() => {
      const frame = document.createElement('iframe');
      document.body.append(frame);
      return call(frame.contentWindow);
    });
    attempt(() => document.getElementById('link').click());
    attempt(() => document.getElementById('form').submit());
    attempt(() => open('http://HOST/open'));
    document.title = 'everything tried';
  </script>)PAGE";

TEST_F(HostileTest, ReachesNoServerAndOpensNoWindow) {
  Listeners listeners;
  const std::string body =
      Replaced(Replaced(kTalkToServers, "HOST", listeners.Host()), "PACKETS", listeners.PacketHost());
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
  for (int before = -1; before != loads; QTest::qWait(2000)) before = loads;  // until it has come to rest
  EXPECT_LE(loads, 4);  // on a busy machine the page may be gone before a load of it is reported
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
