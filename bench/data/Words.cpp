#include "Words.h"

#include <array>

namespace BenchData::Words {

namespace {

using Text = std::string_view;

constexpr auto NameBeginningsTable = std::to_array<Text>(
    {"Ash",  "Bar",  "Bec",   "Ber",  "Bin",   "Bir",   "Blax",  "Bod",  "Bram", "Brad",  "Brin", "Brock", "Bur",
     "Cal",  "Cam",  "Can",   "Carl", "Cas",   "Chad",  "Charl", "Chel", "Clap", "Cleve", "Col",  "Con",   "Cop",
     "Cor",  "Cran", "Crick", "Crof", "Cul",   "Dal",   "Dar",   "Dean", "Den",  "Dod",   "Dray", "Dul",   "Dun",
     "Ear",  "Eck",  "El",    "Ever", "Fal",   "Far",   "Fen",   "Fin",  "Flam", "Ford",  "Frod", "Gal",   "Gar",
     "Gil",  "Glan", "God",   "Graf", "Gran",  "Grim",  "Guil",  "Had",  "Hal",  "Ham",   "Han",  "Har",   "Hart",
     "Hat",  "Hex",  "Hin",   "Hol",  "Hor",   "Hun",   "Ick",   "Il",   "In",   "Kel",   "Ken",  "Kib",   "Kil",
     "Kin",  "Kirk", "Lang",  "Lan",  "Lap",   "Led",   "Lei",   "Lich", "Lin",  "Long",  "Lud",  "Lyn",   "Mal",
     "Man",  "Mar",  "Mat",   "Mel",  "Mid",   "Mil",   "Mor",   "Nan",  "Nar",  "Nes",   "New",  "Nor",   "Nun",
     "Oak",  "Od",   "Old",   "Orm",  "Os",    "Ot",    "Pad",   "Pat",  "Pen",  "Per",   "Pick", "Pon",   "Por",
     "Pres", "Pul",  "Quen",  "Rad",  "Rams",  "Raw",   "Red",   "Rip",  "Rod",  "Rom",   "Ros",  "Roth",  "Rud",
     "Rug",  "Rush", "Sal",   "San",  "Scar",  "Sed",   "Sel",   "Shap", "Shel", "Sher",  "Skel", "Slai",  "Snet",
     "Sol",  "Stan", "Stave", "Stel", "Stock", "Stour", "Sud",   "Sut",  "Swaf", "Swin",  "Tad",  "Tam",   "Tar",
     "Ted",  "Ten",  "Tet",   "Thax", "Thir",  "Thorn", "Tid",   "Tor",  "Tren", "Tut",   "Ug",   "Ul",    "Up",
     "Ux",   "Wad",  "Wal",   "Wan",  "War",   "Wat",   "Wed",   "Wel",  "Wen",  "Wes",   "Whar", "Whit",  "Wig",
     "Wil",  "Win",  "Wis",   "Wit",  "Wol",   "Wor",   "Wrag",  "Yar",  "Yel",  "Yox"});

constexpr auto NameMiddlesTable = std::to_array<Text>(
    {"",  "",   "",     "",     "er",  "ing", "en",   "el",   "s",   "le",  "al",   "in",   "and",  "or",
     "y", "ar", "hamp", "well", "ber", "der", "ning", "ling", "ter", "man", "ches", "brid", "ston", "mers"});

constexpr auto NameEndsTable = std::to_array<Text>(
    {"ton",   "ham",     "ford",   "ley",     "bury",  "by",   "thorpe", "wick",   "wich",  "field",   "worth",
     "hurst", "combe",   "dale",   "stead",   "well",  "wood", "bridge", "bourne", "mouth", "minster", "borough",
     "burgh", "chester", "cester", "hampton", "stoke", "stow", "mere",   "marsh",  "moor",  "more",    "hill",
     "hall",  "gate",    "grove",  "green",   "holt",  "head", "lake",   "land",   "low",   "leigh",   "ney",
     "over",  "pool",    "port",   "ridge",   "rigg",  "shaw", "shall",  "side",   "slade", "stone",   "street",
     "stock", "thwaite", "toft",   "tree",    "vale",  "wade", "wall",   "ware",   "wath",  "way",     "whistle",
     "with",  "wold",    "worthy", "yard",    "don",   "den",  "din",    "fold",   "garth", "beck"});

constexpr auto NamePrefixesTable = std::to_array<Text>(
    {"Great",  "Little", "Upper",    "Lower",   "North", "South",   "East",    "West",    "Old",   "New",
     "Market", "Long",   "High",     "Nether",  "Over",  "Castle",  "Abbots",  "Bishops", "Kings", "Queens",
     "Church", "Temple", "Chipping", "Steeple", "Monks", "St Mary", "St Ives", "Much"});

constexpr auto FeaturesTable = std::to_array<Text>(
    {"Wendle", "Tarrow", "Marren", "Ouske", "Severin", "Trenn", "Aylde", "Derwin", "Forest", "Hill",
     "Water",  "Marsh",  "Moors",  "Vale",  "Sea",     "Heath", "Fosse", "Thorne", "Eddle",  "Lathe",
     "Cray",   "Brue",   "Welle",  "Dunne", "Hythe",   "Wolds", "Fens",  "Elms",   "Isle",   "Woodlands"});

constexpr auto JoinersTable = std::to_array<Text>(
    {" upon ", "-upon-", " on ", "-on-", " in the ", "-le-", " cum ", " with ", " under ", " by ", "-by-", " and "});

constexpr auto WelshBeginningsTable =
    std::to_array<Text>({"Llan", "Aber", "Pen",  "Tre",   "Pont", "Caer", "Nant", "Rhos", "Ystrad", "Bettws",
                         "Cwm",  "Maes", "Bryn", "Porth", "Glyn", "Dol",  "Plas", "Moel", "Blaen",  "Capel"});

constexpr auto WelshEndsTable = std::to_array<Text>(
    {"dudno",  "gellen",  "gwyn",   "fair",   "badarn",  "beris", "beblig", "deilo",   "fechan", "fihangel", "garon",
     "gollen", "drindod", "ddewi",  "newydd", "rhystud", "wrtyd", "wyddno", "ystwyth", "daron",  "dyfi",     "gele",
     "soch",   "aeron",   "honddu", "cynon",  "dare",    "taf",   "mawr",   "bach",    "arth",   "coed",     "rhos",
     "goch",   "wen",     "las",    "ddu",    "morfa",   "haf",   "llech",  "teifi",   "tywi",   "rhondda",  "gwaun",
     "cothi",  "hirwaun", "nedd",   "afan",   "ogwr",    "gwili", "cennen"});

constexpr auto WelshSuffixesTable = std::to_array<Text>(
    {"Fawr", "Fach", "Uchaf", "Isaf", "Newydd", "Goch", "Wen", "Deg", "y Bont", "yn Rhos", "ar Daf"});

constexpr auto CountiesTable = std::to_array<Text>(
    {"Arlshire",  "Bedmere",   "Brecknorth", "Camdale",   "Carrick",   "Cheswold",  "Cornmarch", "Cumberlea",
     "Denbury",   "Dorne",     "Durwick",    "Elmsex",    "Flintmere", "Glamorwen", "Glouworth", "Hampmere",
     "Herefold",  "Hertsmere", "Huntsmoor",  "Kentmarch", "Lancwold",  "Leicmere",  "Lincwold",  "Merionwen",
     "Midsex",    "Monmarch",  "Montgowen",  "Norfeld",   "Northmere", "Nottwold",  "Oxmere",    "Pembrwen",
     "Radnorwen", "Rutmere",   "Salopmarch", "Somermere", "Staffwold", "Suffeld",   "Surmere",   "Sussmarch",
     "Warmere",   "Westwold",  "Wiltmere",   "Worcwold",  "Yorkdale"});

constexpr auto AdditionsTable =
    std::to_array<Text>({"Union", "District", "Rural", "Urban", "Town", "Parish", "Registration District", "R D",
                         "Borough", "Church", "Village", "St Mary", "All Saints", "North", "South", "Green", "Heath"});

constexpr auto AbbreviationsTable = std::to_array<Text>({"Gt", "Lt", "Nr", "Up", "Lr", "St", "Mkt", "Nth", "Sth"});

constexpr auto CommentTypesTable = std::to_array<Text>({"NOTE", "SOURCE", "BOUNDARY", "HISTORY", "TODO", "CHECK",
                                                        "SCAN", "REGISTRAR", "SUBDIST", "VOLUME", "SPELLING", "QUERY"});

constexpr auto CommentWordsTable = std::to_array<Text>(
    {"created", "from",  "part",     "of",      "the",     "old",         "union",     "and",      "abolished",
     "when",    "its",   "parishes", "passed",  "to",      "the",         "new",       "district", "records",
     "held",    "at",    "the",      "county",  "office",  "see",         "also",      "volume",   "index",
     "pages",   "for",   "earlier",  "years",   "checked", "against",     "printed",   "guide",    "boundary",
     "moved",   "north", "bank",     "of",      "river",   "transferred", "sub",       "district", "renamed",
     "after",   "order", "in",       "council", "entries", "spelt",       "variously", "by",       "clerks"});

constexpr auto RomanNumbersTable = std::to_array<Text>(
    {"I",  "II",  "III",  "IV",    "V",   "VI", "VII", "VIII", "IX",    "X",    "XI",  "XII",  "XIII", "XIV",
     "XV", "XVI", "XVII", "XVIII", "XIX", "XX", "XXI", "XXII", "XXIII", "XXIV", "XXV", "XXVI", "XXVII"});

} // namespace

const Table NameBeginnings = NameBeginningsTable;
const Table NameMiddles = NameMiddlesTable;
const Table NameEnds = NameEndsTable;
const Table NamePrefixes = NamePrefixesTable;
const Table Features = FeaturesTable;
const Table Joiners = JoinersTable;
const Table WelshBeginnings = WelshBeginningsTable;
const Table WelshEnds = WelshEndsTable;
const Table WelshSuffixes = WelshSuffixesTable;
const Table Counties = CountiesTable;
const Table Additions = AdditionsTable;
const Table Abbreviations = AbbreviationsTable;
const Table CommentTypes = CommentTypesTable;
const Table CommentWords = CommentWordsTable;
const Table RomanNumbers = RomanNumbersTable;

} // namespace BenchData::Words
