// The numbers of everything that a player can ask of the main window.

#pragma once

namespace ventrel::command {

inline constexpr int heading45 = 3; ///< the keypad's 9 has a number of its own kind

inline constexpr int fileMenu = 500;
inline constexpr int optionsMenu = 501;
inline constexpr int executeOrder = 506;
inline constexpr int helpMenu = 32651;

inline constexpr int newGame = 4001;
inline constexpr int endGame = 4002;
inline constexpr int exitProgram = 4003;
inline constexpr int nothing = 4004; ///< greyed items of the system menu
inline constexpr int minimise = 4005;
inline constexpr int schedule = 4006;
inline constexpr int autoSelect = 4010;
inline constexpr int bossKey = 4013;
inline constexpr int pause = 4014;
inline constexpr int about = 4015;
inline constexpr int grid = 4016;
inline constexpr int music = 4018;
inline constexpr int soundEffects = 4020;
inline constexpr int pilotVoices = 4022;
inline constexpr int smallResolution = 4024;
inline constexpr int largeResolution = 4025;
inline constexpr int heading0 = 4026;
inline constexpr int heading90 = 4027;
inline constexpr int heading135 = 4028;
inline constexpr int heading180 = 4029;
inline constexpr int heading225 = 4030;
inline constexpr int heading270 = 4031;
inline constexpr int heading315 = 4032;
inline constexpr int toggleDirect = 4033;
inline constexpr int nextStrip = 4034;
inline constexpr int previousStrip = 4035;
inline constexpr int directUp = 4036;
inline constexpr int directDown = 4037;
inline constexpr int altitudeUp = 4038;
inline constexpr int altitudeDown = 4039;
inline constexpr int slow = 4040;
inline constexpr int normal = 4041;
inline constexpr int fast = 4042;
inline constexpr int skipClock = 4043;
inline constexpr int backgroundImage = 4045;
inline constexpr int routes = 4046;
inline constexpr int sweep = 4048;
inline constexpr int fullScreen = 4051;
inline constexpr int highScores = 4052;

// The order menu of an aircraft: series of commands, each counted from its first.
inline constexpr int planeHeading = 4053;  ///< 0 to 315 in steps of 45
inline constexpr int planeDirect = 4061;   ///< map points 0 to 31
inline constexpr int planeAltitude = 4093; ///< 1K to 10K
inline constexpr int planeSlow = 4103;
inline constexpr int planeNormal = 4104;
inline constexpr int planeFast = 4105;
inline constexpr int planeHold = 4106;
inline constexpr int planeHeadings = 8;
inline constexpr int planeTargets = 32;
inline constexpr int planeAltitudes = 10;
inline constexpr int planeSpeeds = 3; ///< slow, normal, fast

// Beyond the classic set.
inline constexpr int help = 4201;             ///< the keys and the rules
inline constexpr int switchFullScreen = 4202; ///< at once, where the menu's item asks for a restart

// Each volume: its steps from the softest, and one step down or up.
inline constexpr int musicVolume = 4210;
inline constexpr int soundVolume = 4220;
inline constexpr int musicSofter = 4230;
inline constexpr int musicLouder = 4231;
inline constexpr int soundSofter = 4232;
inline constexpr int soundLouder = 4233;

inline constexpr int replays = 4240; ///< the dialog of the replays
inline constexpr int jumpInReplay = 4241;
inline constexpr int shiftOfTheDay = 4242;

inline constexpr int shiftLog = 4250; ///< the window of the log: opens, closes
// Lessons.
inline constexpr int lessons = 4260;    ///< the list of them
inline constexpr int lessonGoOn = 4261; ///< what the second button of a lesson's note says
inline constexpr int leaveLesson = 4262;

inline constexpr int aids = 4280; ///< the dialog of the aids

inline constexpr int nextFlight = 4203; ///< that can be selected, wherever its strip is
inline constexpr int previousFlight = 4204;

// A game that is watched, and practice.
inline constexpr int watchShift = 4270;
inline constexpr int slowDown = 4271;
inline constexpr int speedUp = 4272;
inline constexpr int takeOver = 4273;
inline constexpr int stopWatching = 4274;
inline constexpr int halfSpeed = 4275;
inline constexpr int skipToEvent = 4276;

} // namespace ventrel::command
