// Images: what is in them, that they hold everything, and what becomes of broken ones.
#include "tesselctl/state/image.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>

#include "tesselctl/device/entry_line.hpp"
#include "tesselctl/text/file_writer.hpp"
#include "tesselctl/text/files.hpp"
#include "tool_fixture.hpp"

namespace tesselctl {
namespace {

// Something of every kind; handles that do not count from 1; entries removed in between.
constexpr std::string_view kEverything[] = {
    "member add ecmpMemberActionProfile as=gone action=setEcmpNextHop nextHop=99",
    "member add ecmpMemberActionProfile as=a action=setEcmpNextHop nextHop=1",
    "member add ecmpMemberActionProfile as=b action=setEcmpNextHop nextHop=2",
    "member delete ecmpMemberActionProfile member=$gone",
    "member add lagPortActionProfile as=l action=setPhysicalPort",
    "group add ecmpMemberActionProfile size=1 as=gonegroup",
    "group add ecmpMemberActionProfile size=4 as=g",
    "group delete ecmpMemberActionProfile group=$gonegroup",
    "group join ecmpMemberActionProfile group=$g member=$a",
    "group join ecmpMemberActionProfile group=$g member=$b",
    "group disable ecmpMemberActionProfile group=$g member=$b",
    "fallback set ecmpMemberActionProfile member=$b",
    "add ecmpGroup ecmpGroup=7 group=$g",
    "add ecmpGroup ecmpGroup=8 member=$a",
    "add ipv4ShortMaskLpm vrfId=1 dip=10.0.0.0/8 ttl=5000 action=setNextHop nextHop=12",
    "add ipv4ShortMaskLpm vrfId=1 dip=0.0.0.0/0 action=setEcmp ecmpGroup=7",
    "add ipv6ShortMaskLpm vrfId=1 dip=2001:db8::/32 action=setNextHop nextHop=3",
    "add l2LookupMiss priority=3 dmac=01:00:00:00:00:00&01:00:00:00:00:00 "
    "meter=8000,1024,16000,2048 action=l2LookupUnknownMcastAction",
    "default set egressMcRemap action=setL2DomainReplicated l2Domain=77",
    "age enable ipv4ShortMaskLpm sweep=100 ttl=1000 max=90000",
    "counter write pdpClassCount index=3 packets=10 bytes=640",
    "meter set pdpMeter index=4 cir=1 cbs=2 pir=3 pbs=4",
    "register write ingVlanCheckData value=1",
    "register write ingVlanCheckData index=8 value=0",
    "register write flowDigestCountReg index=2 value=0xdeadbeef",
    "valueset add recirc_ports value=0x40 mask=0xf0 pipe=1 parser=3",
};

class ImageTest : public ToolTest {
 protected:
  void fill() {
    for (const std::string_view line : kEverything) ASSERT_EQ(run(line), "") << line;
    const std::string hash = program().hashes[0].name;
    ASSERT_EQ(run("hash set " + hash + " seed=0x1234"), "");
  }
  std::string image() {
    std::string text;
    save_image(device_, [&](std::string_view piece) { text += piece; });
    return text;
  }
  std::string path(const std::string &name) {
    paths_.push_back(::testing::TempDir() + "tesselctl_image_" + name);
    return paths_.back();
  }
  ~ImageTest() override {
    for (const std::string &path : paths_) std::remove(path.c_str());
  }
  // What a new device makes of an image.
  static std::string load(std::string_view text, std::string *saved = nullptr) {
    Device device({.id = 9, .pipes = 2});
    try {
      std::string_view rest = text;
      load_image(device, "x", [&](std::string_view &line) {
        if (rest.empty()) return false;
        const size_t end = std::min(rest.find('\n'), rest.size());
        line = rest.substr(0, end);
        rest.remove_prefix(std::min(rest.size(), end + 1));
        return true;
      });
    } catch (const Fault &fault) {
      return fault.what();
    }
    if (saved != nullptr) save_image(device, [&](std::string_view piece) { *saved += piece; });
    return {};
  }

 private:
  std::vector<std::string> paths_;
};

TEST_F(ImageTest, HoldsEverythingToTheLetter) {
  fill();
  std::string text = image();
  // The default entries of the program say nothing about this device.
  std::string shown;
  for (size_t at = 0; at < text.size();) {
    const size_t end = text.find('\n', at) + 1;
    const std::string line = text.substr(at, end - at);
    at = end;
    if (!line.starts_with("table ") && !line.starts_with("default ")) shown += line;
    if (line.find("(0x04d,)") != std::string::npos) shown += line;
  }
  EXPECT_EQ(shown.substr(0, shown.rfind("end ")),
            "tesselctl image 1 tessel_switch\n"
            "pipes 2\n"
            "profile ecmpMemberActionProfile\n"
            "member 1 ('setEcmpNextHop',(0x0001,)),\n"
            "member 2 ('setEcmpNextHop',(0x0002,)),\n"
            "group 1 size=4 members=1,2 inactive=2\n"
            "fallback 2\n"
            "profile lagPortActionProfile\n"
            "member 1 ('setPhysicalPort',()),\n"
            "entry ((( 0x01,0x0a000000,0x0008,),('setNextHop',(0x000c,)),),(0,True)) ttl=5000\n"
            "entry ((( 0x01,0x00000000,0x0000,),('setEcmp',(0x0007,)),),(0,True)) ttl=1000\n"
            "ageing mode=1 sweep=100 max=90000 min=0 ttl=1000\n"
            "entry ((( 0x01,0x20010DB8000000000000000000000000,0x0020,),('setNextHop',(0x0003,)),)"
            ",(0,True)) ttl=0\n"
            "entry ((( 0x0007,),('setGrpHdl',(0x1,))),(0,True))\n"
            "entry ((( 0x0008,),('setMbrHdl',(0x1,))),(0,True))\n"
            "entry ((( 0x000,0x000,0x010000,0x010000,0x000000,0x000000,),"
            "('l2LookupUnknownMcastAction',()),),(3,True)) meter=8000,1024,16000,2048\n"
            "default (((),('setL2DomainReplicated',(0x04d,)),),(0,True))\n"
            "counter pdpClassCount\n"
            "cell 3 pipe=0 packets=10 bytes=640\n"
            "meter pdpMeter\n"
            "cell 4 meter=1,2,3,4 type=1\n"
            "register flowDigestCountReg\n"
            "cell 2 3735928559,3735928559\n"
            "register ingVlanCheckData\n"
            "all 1,1\n"
            "cell 8 0,0\n"
            "hash " +
                std::string(program().hashes[0].name) +
                "\n"
                "seed 0x1234\n"
                "valueset recirc_ports\n"
                "value 0x40 mask=0xf0 direction=0 pipe=1 parser=3\n");
}

TEST_F(ImageTest, SavedLoadedAndSavedAgainItIsTheSame) {
  fill();
  const std::string text = image();
  std::string again;
  EXPECT_EQ(load(text, &again), "");
  EXPECT_EQ(again, text);
}

TEST_F(ImageTest, EveryTableComesBack) {
  size_t entries = 0;
  for (const bindings::Record &record : tables()) {
    const TableInfo table = resolve_table({record.name, 0});
    if (!table.keyed() || table.indirect()) continue;
    for (uint32_t i = 0; i < table.description->action_count; ++i) {
      const soft_action_t &action = table.description->actions[i];
      if (find_export("table_add", table.name(), action.name) == nullptr) continue;
      std::string line = fmt::format("add {}", table.name());
      for (const Field &field : record.shown()) {
        // A value with the number of the action, under its own mask or prefix.
        const char *all = field.match == Match::exact ? "" : "/";
        line += fmt::format(" {}={}", field.name, field.width < 8 ? i % 2 : i + 1);
        if (*all != 0) line += fmt::format("/{}", field.width);
      }
      if (table.has_priority()) line += fmt::format(" priority={}", i + 1);
      if (record.name == std::string("l2LookupMiss")) line += " meter=1,2,3,4";
      line += fmt::format(" action={}", action.name);
      for (const Field &field : action_record(action.name).shown()) {
        line += fmt::format(" {}=1", field.name);
      }
      const std::string answer = run(line);
      if (answer.empty()) ++entries;
    }
  }
  EXPECT_GT(entries, 150u);
  const std::string text = image();
  std::string again;
  EXPECT_EQ(load(text, &again), "");
  EXPECT_EQ(again, text);
}

TEST_F(ImageTest, BrokenImagesNameTheirPlace) {
  const std::string first = "tesselctl image 1 tessel_switch\n";
  const std::string head = first + "pipes 2\n";
  const struct {
    std::string text;
    const char *message;
  } cases[] = {
      {"", "x:1:1: 'end of file': the image is not whole: the line 'end' is missing"},
      {"hello\n", "x:1:1: 'hello': this is no image of tesselctl"},
      {"tesselctl image 2 tessel_switch\n", "x:1:17: '2': this tool reads images of version 1"},
      {"tesselctl image 1 other\n", "x:1:19: 'other': the device runs tessel_switch"},
      {first, "x:2:1: 'end of file': the image is not whole: the line 'end' is missing"},
      {first + "end 1\n", "x:2:1: 'end': the line 'pipes' should come here"},
      {first + "pipes 4\n", "x:2:7: '4': the device has 2 pipes"},
      {head + "end 7\n", "x:3:5: '7': there are 2 lines before this one"},
      {head + "end 2 checksum=0123456789abcdef\n",
       "x:3:7: 'checksum=0123456789abcdef': the image is damaged: its lines have "
       "checksum=5d484060268705d2"},
      {head + "table nextHopp\n",
       "x:3:7: 'nextHopp': no table has this name; did you mean 'nextHop'?"},
      {head + "member 1 ('setEcmpNextHop',(0x0009,)),\n",
       "x:3:1: 'member': this does not belong here"},
      {head + "table nextHop\nentry (((0x1,),\n", "x:4:9: '(': '( ' should stand here"},
      {head + "table nextHop\nentry ((( 0x4000,),('x',()),),(0,True))\n",
       "x:4:11: '0x4000': l3_nextHop has 14 bits, so this is too much"},
      {head + "table ipv4ShortMaskLpm\nentry ((( 0x01,0x0a000000,0x0028,),\n",
       "x:4:27: '0x0028': a prefix has at most 32 bits"},
      {head + "table nextHop\nentry ((( 0x1,),('setNextHop',(0x1,)),),(0,True))\n",
       "x:4:19: 'setNextHop': the table has no action of this name"},
      {head + "table ecmpGroup\nentry ((( 0x1,),('setGrpHdl',(0x3,))),(0,True))\n",
       "x:4:1: 'entry': there is no group #3"},
      {head + "profile ecmpMemberActionProfile\ngroup 1 size=4 members=1,1,1\n",
       "x:4:24: '1,1,1': member #1 is there twice"},
      {head + "table ipv4ShortMaskLpm\nageing mode=1 mode=1\n",
       "x:4:15: 'mode': this is given twice"},
      {head + "register ingVlanCheckData\ncell 5 1\n",
       "x:4:1: 'cell': there should be 2 values, one a pipe"},
      {head + "end 2\nend 1\n", "x:4:1: 'end': nothing should follow the line 'end'"},
  };
  for (const auto &given : cases) EXPECT_EQ(load(given.text), given.message);
}

// Every flipped bit is noticed, or leaves the image what it was. IMAGE_BIT_FLIPS=N tries so many.
TEST_F(ImageTest, ADamagedImageIsNoticed) {
  fill();
  const std::string text = image();
  const char *const wanted = getenv("IMAGE_BIT_FLIPS");
  const size_t flips = wanted == nullptr ? 2000 : std::stoul(wanted);
  size_t refused = 0;
  for (size_t i = 0; i < flips; ++i) {
    // A prime, so that every place has its turn.
    const size_t bit = i * 7919 % (8 * text.size());
    std::string damaged = text;
    damaged[bit / 8] = static_cast<char>(damaged[bit / 8] ^ 1 << bit % 8);
    std::string again;
    if (!load(damaged, &again).empty()) {
      ++refused;
    } else {
      EXPECT_EQ(again, text) << "bit " << bit;
    }
  }
  RecordProperty("refused", static_cast<int>(refused));
  EXPECT_GT(refused, flips * 99 / 100);
  // Without the checksum it is an image too.
  EXPECT_EQ(load(text.substr(0, text.rfind(" checksum=")) + "\n"), "");
}

TEST_F(ImageTest, AnAtomicLoadThatFailsLeavesTheDeviceAsItWas) {
  fill();
  const std::string before = image();
  const std::string file = path("half");
  write_file(file,
             "tesselctl image 1 tessel_switch\npipes 2\ntable ipv4ShortMaskLpm\n"
             "entry ((( 0x02,0x0b000000,0x0008,),('setNextHop',(0x000c,)),),(0,True)) ttl=0\n"
             "entry ((( 0x01,0x0a000000,0x0008,),('setNextHop',(0x000c,)),),(0,True)) ttl=0\n");
  const std::string refused = run("load " + file + " --atomic");
  EXPECT_NE(refused.find("half:5:1: 'entry': BF_ALREADY_EXISTS (4)"), std::string::npos) << refused;
  EXPECT_EQ(image(), before);
  run("load " + file);
  EXPECT_NE(image(), before);
}

// A link stays a link, a private file private, and what is no file is only written to.
TEST_F(ImageTest, SavingKeepsWhatTheFileIs) {
  const std::string file = path("private");
  const std::string link = path("link");
  const std::string pipe = path("pipe");
  write_file(file, "");
  ASSERT_EQ(chmod(file.c_str(), 0600), 0);
  ASSERT_EQ(symlink(file.c_str(), link.c_str()), 0);
  ASSERT_EQ(run("save " + link), "");
  struct stat status = {};
  ASSERT_EQ(lstat(link.c_str(), &status), 0);
  EXPECT_TRUE(S_ISLNK(status.st_mode));
  ASSERT_EQ(lstat(file.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0600u);
  EXPECT_EQ(read_input(file), image());

  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  const int end = open(pipe.c_str(), O_RDWR | O_NONBLOCK);
  EXPECT_EQ(run("save " + pipe), "");
  std::string begin(23, '\0');
  EXPECT_EQ(read(end, begin.data(), begin.size()), 23);
  EXPECT_EQ(begin, "tesselctl image 1 tesse");
  close(end);
  ASSERT_EQ(lstat(pipe.c_str(), &status), 0);
  EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

TEST_F(ImageTest, ADryRunAnswersAndChangesNothing) {
  fill();
  const std::string before = image();
  EXPECT_EQ(run("add nextHop nextHop=5 action=setNextHopDetails dmac=1 domain=1 --dry-run"),
            "nextHop entry=1 added\n");
  EXPECT_NE(run("add ecmpGroup ecmpGroup=7 group=$g --dry-run").find("BF_ALREADY_EXISTS"),
            std::string::npos);
  EXPECT_EQ(image(), before);
}

// Whatever was changed, apply brings it back, and then nothing differs.
TEST_F(ImageTest, DiffTellsAndApplyUndoesEveryChange) {
  fill();
  const std::string file = path("base");
  run("save " + file);
  EXPECT_EQ(run("diff " + file), "");
  EXPECT_EQ(run("verify " + file).substr(0, 6), "equal ");
  const struct {
    const char *line;
    const char *diff;
  } cases[] = {
      {"delete ipv6ShortMaskLpm vrfId=1 dip=2001:db8::/32",
       "- ipv6ShortMaskLpm vrfId=1 dip=2001:db8::/32 ttl=0 action=setNextHop nextHop=3\n"},
      {"modify ipv4ShortMaskLpm vrfId=1 dip=0.0.0.0/0 action=setNextHop nextHop=4",
       "- ipv4ShortMaskLpm vrfId=1 dip=0.0.0.0/0 ttl=1000 action=setEcmp ecmpGroup=7\n"
       "+ ipv4ShortMaskLpm vrfId=1 dip=0.0.0.0/0 ttl=1000 action=setNextHop nextHop=4\n"},
      {"add ecmpGroup ecmpGroup=9 group=$g", "+ ecmpGroup ecmpGroup=9 group=#1\n"},
      {"modify ecmpGroup ecmpGroup=8 member=$b",
       "- ecmpGroup ecmpGroup=8 member=#1\n+ ecmpGroup ecmpGroup=8 member=#2\n"},
      {"group leave ecmpMemberActionProfile group=$g member=$a",
       "- ecmpMemberActionProfile group=#1 size=4 members=1,2 inactive=2\n"
       "+ ecmpMemberActionProfile group=#1 size=4 members=2 inactive=2\n"},
      {"group enable ecmpMemberActionProfile group=$g member=$b",
       "- ecmpMemberActionProfile group=#1 size=4 members=1,2 inactive=2\n"
       "+ ecmpMemberActionProfile group=#1 size=4 members=1,2\n"},
      {"member modify ecmpMemberActionProfile member=$a action=setEcmpNextHop nextHop=50",
       "- ecmpMemberActionProfile member=#1 action=setEcmpNextHop nextHop=1\n"
       "+ ecmpMemberActionProfile member=#1 action=setEcmpNextHop nextHop=50\n"},
      {"member add ecmpMemberActionProfile action=setEcmpNextHop nextHop=51",
       "+ ecmpMemberActionProfile member=#3 action=setEcmpNextHop nextHop=51\n"},
      {"fallback set ecmpMemberActionProfile member=$a",
       "- ecmpMemberActionProfile fallback member=#2\n"
       "+ ecmpMemberActionProfile fallback member=#1\n"},
      {"default reset egressMcRemap",
       "- egressMcRemap default action=setL2DomainReplicated l2Domain=77\n"
       "+ egressMcRemap default action=setL2DomainReplicated l2Domain=0\n"},
      {"counter write pdpClassCount index=5 packets=1 bytes=64",
       "+ pdpClassCount index=5 pipe=0 packets=1 bytes=64\n"},
      {"meter set pdpMeter index=4 cir=9 cbs=2 pir=9 pbs=4",
       "- pdpMeter index=4 cir=1 kbit/s cbs=2 kbit pir=3 kbit/s pbs=4 kbit type=unaware\n"
       "+ pdpMeter index=4 cir=9 kbit/s cbs=2 kbit pir=9 kbit/s pbs=4 kbit type=unaware\n"},
      {"register write ingVlanCheckData index=8 value=1",
       "- ingVlanCheckData index=8 values=0,0\n"},
      {"register write ingVlanCheckData value=0",
       "- ingVlanCheckData all values=1,1\n- ingVlanCheckData index=8 values=0,0\n"},
      {"valueset add recirc_ports value=0x50 mask=0xf0",
       "+ recirc_ports value=0x50 mask=0xf0 direction=ingress\n"},
      {"age disable ipv4ShortMaskLpm",
       "- ipv4ShortMaskLpm ageing mode=1 sweep=100 max=90000 min=0 ttl=1000\n"},
      // Ageing that comes, and entries that its limits changed.
      {"age enable ipv6ShortMaskLpm sweep=100 ttl=1000",
       "- ipv6ShortMaskLpm vrfId=1 dip=2001:db8::/32 ttl=0 action=setNextHop nextHop=3\n"
       "+ ipv6ShortMaskLpm vrfId=1 dip=2001:db8::/32 ttl=1000 action=setNextHop nextHop=3\n"
       "+ ipv6ShortMaskLpm ageing mode=1 sweep=100 max=0 min=0 ttl=1000\n"},
  };
  for (const auto &given : cases) {
    ASSERT_EQ(run(given.line), "");
    EXPECT_EQ(run("diff " + file), given.diff) << given.line;
    EXPECT_TRUE(context_.differs);
    // Apply goes the other way.
    const std::string applied = run("apply " + file);
    EXPECT_EQ(applied.find("- "),
              std::string_view(given.diff).find("+ ") == std::string::npos ? std::string::npos : 0)
        << applied;
    EXPECT_EQ(run("diff " + file), "") << given.line;
  }
}

TEST_F(ImageTest, VerifyFindsWhatPlacementDataTell) {
  fill();
  const std::string file = path("base");
  run("save " + file);
  run("modify ipv4ShortMaskLpm vrfId=1 dip=10.0.0.0/8 action=setNextHop nextHop=13");
  run("delete ecmpGroup ecmpGroup=8");
  const std::string answer = run("verify " + file);
  EXPECT_EQ(answer.substr(0, answer.rfind("different compared=")),
            "different ipv4ShortMaskLpm "
            "old=(( 0x01,0x0a000000,0x0008,),('setNextHop',(0x000c,)),) "
            "new=(( 0x01,0x0a000000,0x0008,),('setNextHop',(0x000d,)),)\n"
            "missing ecmpGroup old=(( 0x0008,),('setMbrHdl',(0x1,)))\n");
  EXPECT_TRUE(answer.ends_with(" differences=2\n")) << answer;
  EXPECT_TRUE(context_.differs);
}

}  // namespace
}  // namespace tesselctl
