#include "sample/names.h"

#include <cctype>

#include "sample/chance.h"

namespace tarvane::sample {
namespace {

// No surname here was borne by a man who played in the major leagues through 2024, so that no player of this league can
// share a real player's name. Add only names of which that holds.
constexpr const char* kSurnames[] = {
    "Abernethy",    "Ackroyd",      "Ainscough",    "Aldersey",     "Allardice",    "Almquist",      "Ansley",
    "Appleyard",    "Arkwright",    "Armitage",     "Arrowood",     "Ashcombe",     "Ashdown",       "Ashworth",
    "Atherstone",   "Attwell",      "Aylesworth",   "Bagshaw",      "Bainbridge",   "Balderston",    "Barkworth",
    "Bassingham",   "Baxendale",    "Bellweather",  "Bembridge",    "Benfield",     "Birtwhistle",   "Blackthorn",
    "Blakemore",    "Blenkinsop",   "Bluford",      "Boatwright",   "Bohannon",     "Boothroyd",     "Borthwick",
    "Bosworth",     "Boughton",     "Braithwaite",  "Brandreth",    "Branscombe",   "Bridgewater",   "Brimhall",
    "Brockbank",    "Brockelhurst", "Bromwich",     "Brownlow",     "Bullivant",    "Burlingame",    "Butterworth",
    "Buxbaum",      "Cadwell",      "Calderwood",   "Callender",    "Calthorpe",    "Carruthers",    "Castleberry",
    "Cathcart",     "Cheeseman",    "Chesterfield", "Chilcott",     "Churchwell",   "Clapham",       "Clatterbuck",
    "Cleghorn",     "Clitheroe",    "Coatsworth",   "Colclough",    "Coldwell",     "Colquitt",      "Coningsby",
    "Cornforth",    "Cotterill",    "Coverdale",    "Cranford",     "Creighton",    "Crenshaw",      "Crickmore",
    "Crossfield",   "Crowther",     "Culpepper",    "Darlington",   "Dashwood",     "Dawlish",       "Dearborn",
    "Delamere",     "Denholm",      "Deveraux",     "Dewhurst",     "Dillingham",   "Dinwiddie",     "Doncaster",
    "Dunaway",      "Dunstable",    "Eagleton",     "Eastlake",     "Eckersall",    "Edgecombe",     "Eldredge",
    "Ellingsworth", "Elphinstone",  "Elsworth",     "Entwistle",    "Everhart",     "Fairbairn",     "Fairclough",
    "Fairweather",  "Fallowfield",  "Farthing",     "Featherstone", "Fernsby",      "Fieldhouse",    "Fitzwater",
    "Foxworth",     "Frobisher",    "Garside",      "Gillingham",   "Glendenning",  "Goldthwaite",   "Gravenstein",
    "Greatorex",    "Greenhalgh",   "Greenslade",   "Grosvenor",    "Hadleigh",     "Hainsworth",    "Halliwell",
    "Hambleton",    "Hardcastle",   "Harrowgate",   "Haverford",    "Haythorne",    "Hazelwood",     "Henshall",
    "Hepworth",     "Hetherington", "Hindmarsh",    "Holmgren",     "Horsfall",     "Huddleston",    "Hungerford",
    "Huntingdon",   "Ibbotson",     "Inglewood",    "Ironside",     "Isherwood",    "Jardine",       "Jessop",
    "Karlsson",     "Keighley",     "Kellaway",     "Kettlewell",   "Kingsbury",    "Kirkbride",     "Knightley",
    "Lachlan",      "Lambourne",    "Langstaff",    "Leavenworth",  "Legrand",      "Lightfoot",     "Lindqvist",
    "Loveday",      "Lowbridge",    "Luckenbach",   "Lyndhurst",    "Maccabee",     "Macallister",   "Mainwaring",
    "Manderly",     "Marchbanks",   "Marksbury",    "Massengale",   "Mayhew",       "McCorkindale",  "McCutcheon",
    "McKendrick",   "McLintock",    "McQuarrie",    "Meadowcroft",  "Merriweather", "Millward",      "Molyneux",
    "Monkhouse",    "Montclair",    "Moorcroft",    "Moorhouse",    "Nettleton",    "Netherland",    "Northcote",
    "Oakenshaw",    "Oakhurst",     "Ogilvie",      "Oglethorpe",   "Oldershaw",    "Openshaw",      "Ormsby",
    "Outerbridge",  "Overholt",     "Peabody",      "Pendergrass",  "Penhallow",    "Pinkerton",     "Pocklington",
    "Pomeroy",      "Prestwick",    "Priestley",    "Rawsthorne",   "Renshaw",      "Ringwald",      "Rockwell",
    "Rosenquist",   "Rowbotham",    "Ruddock",      "Saltonstall",  "Satterfield",  "Satterthwaite", "Schermerhorn",
    "Scrimshaw",    "Seabrook",     "Shadwell",     "Shelbourne",   "Sherbrooke",   "Shuttleworth",  "Silverstone",
    "Spofford",     "Stackhouse",   "Stallworth",   "Stanhope",     "Stapleford",   "Starkweather",  "Stickney",
    "Stockbridge",  "Stonebraker",  "Stubblefield", "Summerfield",  "Swaffield",    "Sweetwater",    "Tattersall",
    "Thorneycroft", "Thornburgh",   "Thurlow",      "Titherington", "Tremaine",     "Tyndall",       "Uppington",
    "Vanderhoef",   "Vandermeer",   "Walmsley",     "Wardlaw",      "Waterhouse",   "Weatherby",     "Wentworth",
    "Westerfield",  "Whipple",      "Whitcombe",    "Whittlesey",   "Widdowson",    "Wildblood",     "Winterbourne",
    "Witherspoon",  "Woodbridge",   "Woolworth",    "Wycliffe",     "Yarborough",   "Yarrow",        "Yelverton",
    "Zimmerhoff",   "Abramczyk",    "Bielawski",    "Brzezicki",    "Chmielewski",  "Dombrowski",    "Gajewski",
    "Grabowiecki",  "Jablonowski",  "Kwiatkowski",  "Malinowski",   "Nowakowski",   "Piotrowski",    "Sobczyk",
    "Szymanski",    "Wisniewski",   "Bellandi",     "Bonfiglio",    "DiSalvatore",  "Fontanella",    "Giambruno",
    "Marchetti",    "Palladino",    "Quattrocchi",  "Zaccagnini",   "Achterberg",   "Biedermann",    "Dietzmann",
    "Feldkamp",     "Freudenberg",  "Hasselbring",  "Kirchhoff",    "Langenfeld",   "Niedermeyer",   "Pfefferkorn",
    "Reichenbach",  "Rosenkranz",   "Schoenfelder", "Stadelmann",   "Tiedemann",    "Uhlenbrock",    "Wolfensberger",
    "Abiodun",      "Bledsoe",      "Boykins",      "Broadnax",     "Cheatham",     "Culbreath",     "Fauntleroy",
    "Goodlow",      "Hightower",    "Merriwether",  "Pettway",      "Roundtree",    "Seaborn",       "Singletary",
    "Treadwell",    "Whisenhunt",   "Younkin",      "Gadsden",      "Ledoux",       "Thibodaux",     "Arceneaux",
    "Boudreaux",    "Landrieux",    "Robichaux",    "Thibodeaux",
};

constexpr const char* kSpanishSurnames[] = {
    "Abascal",   "Agramonte",    "Albornoz",    "Aldaco",     "Almendarez",  "Ancheta",     "Anchondo",   "Arbelaez",
    "Arguello",  "Arispe",       "Armenta",     "Balderrama", "Barrientos",  "Bengoechea",  "Bocanegra",  "Buenrostro",
    "Cantarero", "Carrasquillo", "Casarrubias", "Cebrian",    "Cienfuegos",  "Covarrubias", "Dominicci",  "Echeverria",
    "Elizalde",  "Escamilla",    "Esparza",     "Etxeberria", "Fagundez",    "Gorostiza",   "Goyeneche",  "Iturbide",
    "Izaguirre", "Larrazabal",   "Lizarraga",   "Luzuriaga",  "Mendizabal",  "Monterroso",  "Olavarria",  "Orellana",
    "Ormaechea", "Palomares",    "Peniche",     "Recabarren", "Rocafuerte",  "Saavedra",    "Santibanez", "Sepulveda",
    "Urquidez",  "Villagomez",   "Zaldivar",    "Zorrilla",   "Zubizarreta", "Zumarraga",
};

constexpr const char* kGivenNames[] = {
    "Bill",    "John",   "Mike",    "Jim",    "Joe",    "Bob",    "George",  "Frank",  "Tom",    "Ed",     "Jack",
    "Charlie", "Dave",   "Steve",   "Al",     "Harry",  "Chris",  "Fred",    "Dick",   "Jeff",   "Matt",   "Johnny",
    "Ray",     "Don",    "Mark",    "Paul",   "Scott",  "Billy",  "Brian",   "Ryan",   "Pete",   "Bobby",  "Pat",
    "Dan",     "Kevin",  "Tony",    "Larry",  "Eddie",  "Tim",    "Sam",     "Ken",    "Jerry",  "Nick",   "Andy",
    "Gene",    "Tommy",  "Roy",     "Art",    "Ron",    "Danny",  "Jimmy",   "Ben",    "Lou",    "Greg",   "Gary",
    "Eric",    "Rick",   "Hal",     "Phil",   "Kyle",   "Henry",  "Hank",    "Doug",   "Chuck",  "Randy",  "Ralph",
    "Ted",     "Rich",   "Willie",  "Ernie",  "Brad",   "Lee",    "Carl",    "Terry",  "Walt",   "Earl",   "Walter",
    "Jay",     "Mickey", "Bert",    "Bruce",  "Stan",   "Wally",  "Marty",   "Craig",  "Rob",    "Jesse",  "Roger",
    "Dennis",  "Les",    "Gus",     "Buck",   "Todd",   "Russ",   "Keith",   "Glenn",  "Leo",    "Cliff",  "Wayne",
    "Clay",    "Dwight", "Elliott", "Floyd",  "Grant",  "Howard", "Irv",     "Kirk",   "Lamar",  "Lonnie", "Milt",
    "Ned",     "Otis",   "Perry",   "Reggie", "Sid",    "Vern",   "Wes",     "Alvin",  "Barry",  "Cal",    "Clarence",
    "Darrell", "Garry",  "Gordon",  "Ivan",   "Jackie", "Lance",  "Len",     "Leroy",  "Luther", "Mel",    "Merv",
    "Neil",    "Norm",   "Rodney",  "Rollie", "Rusty",  "Skip",   "Spencer", "Warren", "Woody",
};

constexpr const char* kSpanishGivenNames[] = {
    "Jose",    "Luis",     "Carlos",    "Juan",     "Pedro",     "Oscar",   "Ramon",    "Miguel",   "Rafael",  "Jorge",
    "Angel",   "Manny",    "Hector",    "Felix",    "Tito",      "Cesar",   "Julio",    "Roberto",  "Orlando", "Ruben",
    "Enrique", "Ivan",     "Aurelio",   "Bernardo", "Dagoberto", "Eduardo", "Fernando", "Gilberto", "Horacio", "Ismael",
    "Jesus",   "Leonardo", "Marcelino", "Nestor",   "Pablo",     "Rogelio", "Santos",   "Tomas",    "Vicente",
};

constexpr double kSpanishShare = 0.11;

template <std::size_t count>
std::string Pick(Random& random, const char* const (&list)[count]) {
    return list[random.Below(static_cast<std::uint32_t>(count))];
}

std::string Letters(const std::string& name, std::size_t count) {
    std::string letters;
    for (const char c : name) {
        if (letters.size() == count) break;
        if (std::isalpha(static_cast<unsigned char>(c)))
            letters += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    return letters;
}

}  // namespace

void NameGiver::Name(Player& player) {
    do {
        const bool spanish = Happens(random_, kSpanishShare);
        player.surname = spanish ? Pick(random_, kSpanishSurnames) : Pick(random_, kSurnames);
        player.given = spanish ? Pick(random_, kSpanishGivenNames) : Pick(random_, kGivenNames);
    } while (!taken_.insert(player.given + " " + player.surname).second);
    const std::string stem = Letters(player.surname, 5) + Letters(player.given, 2);
    const int number = ++stems_[stem];
    player.id = stem + (number < 10 ? "0" : "") + std::to_string(number);
}

}  // namespace tarvane::sample
