#include <gtest/gtest.h>

#include "app/CommandLine.h"

namespace {
CommandLineResult parse(QStringList args) {
    args.prepend("calorie-counter");
    return parseCommandLine(args);
}
}  // namespace

TEST(CommandLine, DefaultsAndIdiomSizes) {
    const auto phone = parse({});
    ASSERT_TRUE(phone.options);
    EXPECT_FALSE(phone.options->pad);
    EXPECT_EQ(phone.options->screen, QSize(320, 568));
    EXPECT_EQ(phone.options->launchHoldMs, 2000);
    EXPECT_FALSE(phone.options->log);

    const auto pad = parse({"--idiom", "pad", "--log", "--data-dir", "/tmp/x", "--launch-hold-ms",
                            "0", "--screenshot", "a.png"});
    ASSERT_TRUE(pad.options);
    EXPECT_TRUE(pad.options->pad);
    EXPECT_EQ(pad.options->screen, QSize(768, 1024));
    EXPECT_EQ(pad.options->dataDir, "/tmp/x");
    EXPECT_EQ(pad.options->launchHoldMs, 0);
    EXPECT_EQ(pad.options->screenshot, "a.png");
    EXPECT_TRUE(pad.options->log);

    const auto small = parse({"--idiom=phone", "--screen", "320x480"});
    ASSERT_TRUE(small.options);
    EXPECT_EQ(small.options->screen, QSize(320, 480));
}

TEST(CommandLine, BadInputExitsWithStatusTwoAndSaysWhy) {
    for (const QStringList& args :
         {QStringList{"--idiom", "watch"}, {"--screen", "320"}, {"--screen", "axb"},
          {"--launch-hold-ms", "-1"}, {"--launch-hold-ms", "soon"}, {"--frobnicate"},
          {"stray"}, {"--data-dir"}, {"--screenshot", ""}}) {
        const auto result = parse(args);
        EXPECT_FALSE(result.options) << args.join(' ').toStdString();
        EXPECT_EQ(result.exitCode, 2) << args.join(' ').toStdString();
        EXPECT_FALSE(result.message.isEmpty()) << args.join(' ').toStdString();
    }
    const auto help = parse({"--help"});
    EXPECT_FALSE(help.options);
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_TRUE(help.message.contains("--screenshot"));
}
