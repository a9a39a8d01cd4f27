#include "npc/npc_names.h"

#include "text/search.h"

namespace veld {

namespace {

// Every people has names of its own, made for Quellmarch. A list may grow anywhere; a character made again from an old
// seed is then named otherwise.
// clang-format off

constexpr std::string_view kDwarfMen[] = {
    "Bordan", "Borlin", "Borrik", "Brokvik", "Dagbur", "Daggan", "Drumbur", "Drumdan", "Drumdrum", "Drumgan",
    "Drummar", "Drummund", "Drumvik", "Garnbur", "Garngan", "Garngar", "Garnlin", "Garnmar", "Grunmund", "Grunrik",
    "Gunddrum", "Gundlin", "Gundmund", "Hakkdan", "Hakkmar", "Hakknok", "Hakksten", "Hakkvik", "Holdbur", "Holdmar",
    "Holdmund", "Kellmund", "Kellnok", "Kragbur", "Kraggan", "Kragmar", "Kragmund", "Kragrik", "Margmar", "Margnok",
    "Margrik", "Margsten", "Oddan", "Oddmar", "Oddnok", "Oddrum", "Rumdrum", "Rumlin", "Rummund", "Skargar",
    "Skarmund", "Sturgan", "Sturrik", "Stursten", "Tholgan", "Tholgar", "Tholnok", "Tholvik", "Torgdan", "Torgdrum",
    "Torgsten", "Varrgan", "Varrlin", "Varrvik",
};

constexpr std::string_view kDwarfWomen[] = {
    "Asla", "Aslaga", "Aslamir", "Aslarunn", "Bruna", "Brunabet", "Brunadis", "Brunalotta", "Daggadis", "Daggarunn",
    "Gerdbet", "Gerddis", "Gerdga", "Gerdlotta", "Gretaga", "Gretalotta", "Gretamir", "Hilka", "Hilkadis", "Hilkaga",
    "Hilkalin", "Holdalin", "Holdamir", "Ingra", "Ingramir", "Ingrawen", "Keldabet", "Keldalin", "Keldalotta",
    "Marna", "Marnalin", "Odda", "Oddabet", "Oddalin", "Oddarunn", "Runabet", "Runaga", "Runalotta", "Runamir",
    "Runawen", "Sigga", "Siggabet", "Siggadis", "Siggarunn", "Siggawen", "Skaddarunn", "Thorabet", "Thoradis",
    "Thoraga", "Thoralin", "Torvadis", "Torvamir", "Torvarunn", "Torvawen", "Ulda", "Uldalin", "Uldamir", "Uldarunn",
    "Uldawen", "Varna", "Varnadis", "Varnalin", "Varnalotta", "Varnamir",
};

constexpr std::string_view kElfMen[] = {
    "Aedhir", "Aelias", "Aeryss", "Aevyr", "Caeldhir", "Caellanth", "Caellias", "Caelmedor", "Caelniel", "Caelsoril",
    "Caelwyn", "Eloniel", "Elorion", "Eloryss", "Faedhir", "Faemedor", "Faethas", "Ilumedor", "Ilusoril", "Isimedor",
    "Isirion", "Isisoril", "Isithas", "Isivyr", "Isiwyn", "Laedhir", "Laemedor", "Laeniel", "Myrdhir", "Myrmedor",
    "Myrrion", "Myrthas", "Naelias", "Naerion", "Naesoril", "Naethas", "Orylias", "Oryniel", "Oryrion", "Oryvyr",
    "Orywyn", "Quelmedor", "Quellias", "Quelsoril", "Quelwyn", "Saelias", "Saemedor", "Saeniel", "Saerion", "Saethas",
    "Saevyr", "Saewyn", "Thaeryss", "Thaesoril", "Thaewyn", "Vaelmedor", "Vaelrion", "Vaelryss", "Vaelsoril",
    "Vaelthas", "Yraryss", "Yrathas", "Yravyr", "Yrawyn",
};

constexpr std::string_view kElfWomen[] = {
    "Alydwen", "Alynthe", "Alyriel", "Alyveth", "Caeledwen", "Caelemira", "Caelenthe", "Caelessra", "Elydwen",
    "Elynara", "Elysael", "Elyveth", "Fiariel", "Fiassra", "Fiathia", "Ilydwen", "Ilymira", "Ilysael", "Ilyssra",
    "Ilyveth", "Isalyse", "Isasael", "Isaveth", "Lialyse", "Liamira", "Lianara", "Lianthe", "Liariel", "Liasael",
    "Liassra", "Myrethia", "Myreveth", "Niadwen", "Nialyse", "Nianara", "Niasael", "Niathia", "Orydwen", "Oryriel",
    "Orythia", "Oryveth", "Queladwen", "Quelanara", "Quelariel", "Quelathia", "Sylanara", "Sylariel", "Sylasael",
    "Sylassra", "Theadwen", "Theanara", "Theanthe", "Theariel", "Theassra", "Theathia", "Vaeriel", "Vaessra",
    "Vaethia", "Ylidwen", "Ylinara", "Ylinthe", "Yliriel", "Ylisael", "Ylithia",
};

constexpr std::string_view kGnomeMen[] = {
    "Bimdle", "Bimnock", "Bimper", "Bimwick", "Bimzle", "Bopbert", "Bopkin", "Boprick", "Dibper", "Dibwick", "Dibzle",
    "Fidble", "Fidnock", "Fidper", "Fidrick", "Fidwick", "Fizzble", "Fizzdle", "Fizzlow", "Fizznock", "Fizzper",
    "Gimbert", "Gimnock", "Gimwick", "Jopnock", "Joprick", "Jopzle", "Knobdle", "Knobkin", "Knobnock", "Knobwick",
    "Nibbert", "Nibkin", "Nibnock", "Nibper", "Nibwick", "Nibzle", "Pockdle", "Pocknock", "Pockper", "Pockrick",
    "Pockzle", "Quibdle", "Quibnock", "Quibrick", "Quibzle", "Tockdle", "Tockkin", "Tocknock", "Tockper", "Tockrick",
    "Trinbert", "Trinble", "Trindle", "Trinkin", "Trinlow", "Wimbert", "Wimble", "Wimwick", "Wimzle", "Zibble",
    "Zibdle", "Zibnock", "Zibwick",
};

constexpr std::string_view kGnomeWomen[] = {
    "Bimdora", "Bimra", "Bopsylina", "Bopsynetta", "Bopsypina", "Bopsyra", "Bopsywicka", "Bopsyzy", "Dillyka",
    "Dillylina", "Dillymira", "Dillywicka", "Dillyzy", "Fiddadora", "Fiddamira", "Fiddanetta", "Fiddapina", "Fiddazy",
    "Fizzbell", "Fizzka", "Fizzlina", "Fizzpina", "Fizzra", "Gillybell", "Gillyka", "Gillynetta", "Gillyra",
    "Jopnetta", "Jopzy", "Mizzlina", "Mizzra", "Nibbydora", "Nibbyra", "Pockabell", "Pockanetta", "Pockapina",
    "Pockazy", "Quilladora", "Quillalina", "Quillamira", "Quillara", "Quillawicka", "Tinkamira", "Tinkanetta",
    "Tinkara", "Tinkawicka", "Tinkazy", "Trillyka", "Trillylina", "Trillynetta", "Trillypina", "Wimlina", "Wimmira",
    "Wimpina", "Wimra", "Zibbybell", "Zibbydora", "Zibbyka", "Zibbylina", "Zibbynetta", "Zibbypina", "Zibbyra",
    "Zibbywicka", "Zibbyzy",
};

constexpr std::string_view kHalflingMen[] = {
    "Barkin", "Barley", "Barper", "Barsey", "Barwick", "Cobkin", "Cobley", "Coblow", "Dunbert", "Dunley", "Dunlow",
    "Fenbert", "Fenby", "Fendock", "Fenley", "Fenlow", "Fenper", "Fensey", "Garby", "Garkin", "Garlow", "Garper",
    "Garwick", "Hapby", "Hapkin", "Happer", "Hapton", "Hobdock", "Hobsey", "Hobwick", "Jasby", "Jaston", "Jaswick",
    "Lobbert", "Lobdock", "Lobkin", "Loblow", "Lobsey", "Lobton", "Lobwick", "Merdock", "Merkin", "Merwick", "Nobdock",
    "Nobkin", "Nobley", "Noblow", "Nobper", "Nobsey", "Padby", "Padkin", "Padper", "Padwick", "Robdock", "Robwick",
    "Tambert", "Tamby", "Tamley", "Tamsey", "Tamton", "Tamwick", "Wildock", "Wilkin", "Wilper",
};

constexpr std::string_view kHalflingWomen[] = {
    "Baybelle", "Baydora", "Bayetta", "Baymina", "Clobelle", "Cloetta", "Clomina", "Cloola", "Clowyn", "Daidora",
    "Daietta", "Dailie", "Daimina", "Daiwyn", "Ferndora", "Fernsy", "Hapetta", "Hapina", "Haplie", "Hapmina",
    "Hapola", "Hapwyn", "Hazemina", "Hazera", "Hazewyn", "Ivybelle", "Ivyina", "Ivylie", "Ivymina", "Ivysy", "Ivywyn",
    "Jesbelle", "Jesdora", "Jessy", "Lildora", "Liletta", "Lilmina", "Lilra", "Lilwyn", "Maybelle", "Mayetta",
    "Maymina", "Mayola", "Nelletta", "Nellina", "Nellra", "Nellwyn", "Popbelle", "Popra", "Rosbelle", "Rosdora",
    "Roslie", "Rosmina", "Rossy", "Tamdora", "Tametta", "Tamlie", "Tamola", "Tamra", "Tamwyn", "Wilmina", "Wilola",
    "Wilsy", "Wilwyn",
};

constexpr std::string_view kHalfOgreMen[] = {
    "Bogath", "Boglump", "Bogma", "Brug", "Brugdum", "Bruggut", "Brugrak", "Drugbash", "Drugdum", "Druglump",
    "Gorath", "Gordum", "Gorgut", "Gorlump", "Gorma", "Hurggut", "Hurgnar", "Krumbash", "Krumgut", "Krumma",
    "Krumnar", "Mogath", "Mogbash", "Nugbash", "Nugdum", "Nuglump", "Nugma", "Nugnar", "Orgbash", "Orgdum", "Orglump",
    "Orgnar", "Orgrak", "Rog", "Rogath", "Rogdum", "Roggut", "Rograk", "Skogath", "Skogma", "Skograk", "Thugath",
    "Thugbash", "Thugdum", "Thuggut", "Thugma", "Thugrak", "Umpath", "Umpdum", "Umpgut", "Umplump", "Umpnar", "Vog",
    "Vogath", "Vogdum", "Voggut", "Voglump", "Vogma", "Vograk", "Yurgath", "Yurgbash", "Yurggut", "Yurgnar",
    "Yurgrak",
};

constexpr std::string_view kHalfOgreWomen[] = {
    "Boga", "Bogada", "Bogama", "Bogarra", "Bogath", "Bruga", "Brugada", "Brugama", "Brugana", "Brugashka", "Brugath",
    "Drugana", "Drugarra", "Drugath", "Gorra", "Gorrada", "Gorrarra", "Gorrashka", "Gorrath", "Hurgama", "Hurgana",
    "Hurgarra", "Hurgath", "Krumama", "Krumana", "Krumarra", "Krumashka", "Krumath", "Mogada", "Mogarra", "Mogashka",
    "Mogath", "Nugath", "Orga", "Orgada", "Orgama", "Orgarra", "Orgashka", "Roga", "Rogada", "Rogalu", "Rogana",
    "Rogashka", "Rogath", "Skogalu", "Skogama", "Skogana", "Skogarra", "Skogashka", "Thuggada", "Thuggalu",
    "Thuggama", "Thuggashka", "Umpa", "Umparra", "Umpath", "Vogana", "Vogath", "Yurga", "Yurgada", "Yurgalu",
    "Yurgama", "Yurgana", "Yurgashka",
};

constexpr std::string_view kHalfOrcMen[] = {
    "Agash", "Agmur", "Aguk", "Agzhar", "Brakash", "Brakgat", "Durash", "Durdush", "Durgat", "Durmur", "Durnakh",
    "Durrok", "Duruk", "Gashgat", "Gashmur", "Gashol", "Hrukash", "Hrukmur", "Hruknakh", "Hrukzhar", "Kardush",
    "Karol", "Karrok", "Karuk", "Lurgash", "Lurggat", "Lurgnakh", "Lurgzhar", "Makdush", "Makmur", "Maknakh", "Makuk",
    "Nazash", "Nazdush", "Nazmur", "Naznakh", "Nazol", "Nazrok", "Rukdush", "Rukgat", "Rukol", "Rukuk", "Rukzhar",
    "Shagash", "Shagdush", "Shaggat", "Shagnakh", "Shagrok", "Shaguk", "Shagzhar", "Tornakh", "Torrok", "Ulgol",
    "Ulgrok", "Vrakash", "Vrakdush", "Vrakmur", "Vrakuk", "Vrakzhar", "Zugdush", "Zuggat", "Zugnakh", "Zugol",
    "Zugzhar",
};

constexpr std::string_view kHalfOrcWomen[] = {
    "Agami", "Agari", "Brakal", "Brakami", "Brakanka", "Brakari", "Brakash", "Dura", "Durari", "Duratha", "Gasha",
    "Gashal", "Gashanka", "Gashatha", "Hruka", "Hrukal", "Hrukanka", "Hrukash", "Hrukatha", "Karami", "Karanka",
    "Karari", "Karash", "Karatha", "Lurga", "Lurgal", "Lurgami", "Lurganka", "Lurgash", "Lurgatha", "Makami",
    "Makanka", "Makash", "Nazal", "Nazami", "Nazanka", "Nazari", "Ruka", "Rukal", "Rukanka", "Rukari", "Rukash",
    "Rukatha", "Shaga", "Shagal", "Shaganka", "Shagari", "Toral", "Torami", "Torari", "Ulgal", "Ulgami", "Ulganka",
    "Ulgari", "Ulgash", "Ulgatha", "Vrakal", "Vrakanka", "Zugal", "Zugami", "Zuganka", "Zugari", "Zugash", "Zugatha",
};

constexpr std::string_view kHumanMen[] = {
    "Aldan", "Almer", "Bergar", "Bermer", "Bermond", "Berric", "Berwald", "Berward", "Cordan", "Dardan", "Darnick",
    "Edgar", "Ednick", "Farbert", "Fargar", "Farlen", "Gerdan", "Gergar", "Gerlen", "Germond", "Gernick", "Hargar",
    "Harmer", "Harton", "Harward", "Jorgar", "Jorlen", "Jormer", "Kelbert", "Keldan", "Kelgar", "Landan", "Lanwald",
    "Marmer", "Marmond", "Marnick", "Marwald", "Marward", "Nordan", "Norgar", "Norlen", "Nornick", "Osgar", "Oslen",
    "Perlen", "Permer", "Permond", "Perric", "Perton", "Radnick", "Radton", "Sernick", "Serric", "Servin", "Serwald",
    "Toldan", "Tolgar", "Tolric", "Ulbert", "Uldan", "Wesgar", "Wesmer", "Weston", "Weswald",
};

constexpr std::string_view kHumanWomen[] = {
    "Adegard", "Adetha", "Bribelle", "Brimond", "Britha", "Brivera", "Coramond", "Delibelle", "Delidella", "Deliwyn",
    "Elagard", "Elamond", "Elasande", "Elawyn", "Frilind", "Frisande", "Friwyn", "Gisadella", "Gisalind", "Gisavera",
    "Helegard", "Helelise", "Helesande", "Helewyn", "Isobelle", "Isodella", "Isolind", "Isomond", "Isosande",
    "Isovera", "Jane", "Janebelle", "Janedella", "Janesande", "Janetha", "Kari", "Loredella", "Loresande", "Loretha",
    "Mari", "Marivera", "Norebelle", "Noremond", "Noretha", "Norevera", "Norewyn", "Orawyn", "Rosadella", "Rosawyn",
    "Selebelle", "Seledella", "Selelind", "Selelise", "Tildadella", "Tildalind", "Tildalise", "Tildamond",
    "Tildasande", "Unadella", "Unasande", "Wini", "Winibelle", "Winigard", "Winisande",
};

constexpr std::string_view kPixieMen[] = {
    "Briarglow", "Briarwhisk", "Briarwhistle", "Briarwing", "Cloverspin", "Clovertip", "Cloverwhisk", "Cloverwing",
    "Dewdown", "Dewglow", "Dewhop", "Dewspin", "Dewtip", "Dewwhistle", "Flitglow", "Flithop", "Flitleaf", "Flitspin",
    "Glimglow", "Glimhop", "Glimleaf", "Glimtip", "Glimwhisk", "Glimwhistle", "Mossdart", "Mosshop", "Mosswhisk",
    "Mosswhistle", "Mosswing", "Mothglow", "Mothhop", "Mothwhisk", "Mothwhistle", "Petaldart", "Petaldown",
    "Petalhop", "Petalleaf", "Petalspin", "Petaltip", "Petalwhisk", "Petalwhistle", "Pipdown", "Pipglow", "Piphop",
    "Pipleaf", "Piptip", "Pipwhisk", "Pipwing", "Quillglow", "Quillhop", "Quillwhisk", "Reeddown", "Reedleaf",
    "Reedtip", "Sparkdart", "Sparkhop", "Sparkleaf", "Sparkwhisk", "Sparkwhistle", "Sparkwing", "Thistlespin",
    "Twigdart", "Wisptip", "Wispwhisk",
};

constexpr std::string_view kPixieWomen[] = {
    "Briarbelle", "Briardrop", "Briarglow", "Briarshimmer", "Briarsong", "Cloverbreeze", "Cloverdance", "Cloverdrop",
    "Cloverlace", "Cloverspin", "Dewbreeze", "Dewdrop", "Dewlace", "Dewsong", "Dewspin", "Dewwing", "Fernbreeze",
    "Fernsong", "Florabreeze", "Floradance", "Floralace", "Florasong", "Florawing", "Glimmerdrop", "Glimmerglow",
    "Glimmerlace", "Lilydance", "Lilydrop", "Lilylace", "Mistybreeze", "Mistydrop", "Mistylace", "Mistyspin",
    "Mistywing", "Petalbelle", "Petaldance", "Petalspin", "Pipbelle", "Pipdance", "Pipdrop", "Pipglow", "Pipshimmer",
    "Pipsong", "Pipspin", "Rosedrop", "Roseshimmer", "Rosewing", "Silkbreeze", "Silkdrop", "Silklace", "Silkshimmer",
    "Silkwing", "Starbelle", "Stardance", "Starwing", "Thistlebreeze", "Thistledrop", "Thistlespin", "Thistlewing",
    "Willowbelle", "Willowdance", "Willowlace", "Willowshimmer", "Willowwing",
};

constexpr std::string_view kDarkmenMen[] = {
    "Ashmoth", "Ashren", "Cormoth", "Corqen", "Drodos", "Drodrin", "Drokar", "Droqen", "Droren", "Drovath", "Drovek",
    "Erkar", "Ermoth", "Erren", "Ervath", "Erzhan", "Ghakar", "Ghamoth", "Ghavek", "Ghazhan", "Islis", "Isqen",
    "Isvek", "Kaeldrin", "Kaellis", "Kaelqen", "Kaelvath", "Kaelvek", "Kaelzhan", "Mordos", "Mormoth", "Morren",
    "Morvath", "Morvek", "Morzhan", "Nethkar", "Nethlis", "Nethmoth", "Nethqen", "Nethren", "Nethvath", "Nethzhan",
    "Ozdrin", "Ozmoth", "Ozqen", "Ravek", "Razhan", "Suldos", "Sulkar", "Sulqen", "Sulzhan", "Tavdos", "Tavdrin",
    "Tavkar", "Tavqen", "Tavren", "Tavvek", "Veskar", "Veslis", "Vesmoth", "Vesqen", "Vesvath", "Vesvek", "Zarmoth",
};

constexpr std::string_view kDarkmenWomen[] = {
    "Ashadria", "Ashamis", "Ashanai", "Ashara", "Coremis", "Corenai", "Dra", "Dradria", "Dranai", "Drasin", "Dravess",
    "Erimis", "Erinai", "Erisin", "Ghadria", "Ghaleth", "Ghamis", "Ghara", "Ghasin", "Isha", "Ishaleth", "Ishamis",
    "Ishavess", "Kaela", "Kaelaleth", "Kaelamis", "Kaelanai", "Kaelavess", "Kaelazha", "Moradria", "Moramis",
    "Moranai", "Morara", "Moravess", "Netha", "Nethaleth", "Nethamis", "Nethasin", "Nethazha", "Ozamis", "Ozasin",
    "Ozavess", "Ozazha", "Ravidria", "Ravimis", "Ravira", "Ravisin", "Ravizha", "Suladria", "Sulara", "Sulazha",
    "Tavidria", "Tavileth", "Tavimis", "Tavinai", "Vesha", "Veshamis", "Veshanai", "Veshara", "Veshazha", "Zarileth",
    "Zarira", "Zarisin", "Zarivess",
};

constexpr std::string_view kHumanSurnames[] = {
    "Alderwick", "Brackengarth", "Brackenwick", "Coldgarth", "Coldholt", "Coldstile", "Coldthwaite", "Dunbarrow",
    "Eldergarth", "Eldermead", "Elderstile", "Fallowcroft", "Gorsemead", "Gorsethwaite", "Harrowmead", "Larchcroft",
    "Larchstile", "Millbarrow", "Millcroft", "Oakengarth", "Oakenstile", "Quarrycroft", "Sedgegarth", "Sedgemead",
};

constexpr std::string_view kDwarfSurnames[] = {
    "Adithand", "Aditmantle", "Anvilbrow", "Anvilkeeper", "Anvilsplitter", "Cinderheft", "Cinderkeeper",
    "Copperwarden", "Flintheft", "Gravelbrow", "Gravelhand", "Gravelwarden", "Ingotbrow", "Ingotheft", "Ingotkeeper",
    "Ingotwarden", "Shaleheft", "Shalesplitter", "Shalewarden", "Slagbrow", "Slagkeeper", "Tongshand", "Tongsmantle",
    "Tongswarden",
};

constexpr std::string_view kHalflingSurnames[] = {
    "Applespoon", "Barleyacre", "Barleytrundle", "Barleywallow", "Butterwallow", "Crumbpatch", "Crumbwallow",
    "Gooseacre", "Goosespoon", "Honeywallow", "Kettlecrock", "Kettlewallow", "Mustardcrock", "Mustardpatch",
    "Mustardtrundle", "Puddingacre", "Puddingbank", "Puddingcrock", "Puddingspoon", "Puddingwallow", "Turnipacre",
    "Turnipbank", "Turnipcrock", "Turniptrundle",
};

constexpr std::string_view kGnomeSurnames[] = {
    "Cogcap", "Cogsocket", "Cogtapper", "Cogwhirl", "Dimplesocket", "Dimplewright", "Gearfiddle", "Gearsocket",
    "Gearwhirl", "Hingecap", "Lenscap", "Lenswright", "Pebbleloop", "Pebblesocket", "Pebblewhirl", "Pebblewright",
    "Rivetcap", "Rivetfiddle", "Rivetnudge", "Spindlefiddle", "Spindlenudge", "Spindlewhirl", "Thimbleloop",
    "Thimblewright",
};

// clang-format on

constexpr NpcNames kDwarves{kDwarfMen, kDwarfWomen, kDwarfSurnames};
constexpr NpcNames kElves{kElfMen, kElfWomen, {}};
constexpr NpcNames kGnomes{kGnomeMen, kGnomeWomen, kGnomeSurnames};
constexpr NpcNames kHalflings{kHalflingMen, kHalflingWomen, kHalflingSurnames};
constexpr NpcNames kHalfOgres{kHalfOgreMen, kHalfOgreWomen, {}};
constexpr NpcNames kHalfOrcs{kHalfOrcMen, kHalfOrcWomen, {}};
constexpr NpcNames kHumans{kHumanMen, kHumanWomen, kHumanSurnames};
constexpr NpcNames kPixies{kPixieMen, kPixieWomen, {}};
constexpr NpcNames kDarkmen{kDarkmenMen, kDarkmenWomen, {}};

struct People {
  std::string_view Within;  ///< stands in the names of its races
  const NpcNames& Names;
};

// From the top: the half-bloods stand before those of whom they have a part.
constexpr People kPeoples[] = {
    {"Half-ogre", kHalfOgres}, {"Half-orc", kHalfOrcs},  {"Dwarf", kDwarves}, {"Elf", kElves},
    {"Gnome", kGnomes},        {"Halfling", kHalflings}, {"Pixie", kPixies},  {"Darkmen", kDarkmen},
};

}  // namespace

const NpcNames& NamesOfRace(std::string_view race, bool takesAfterHumans) {
  if (race == "Half-elf") return takesAfterHumans ? kHumans : kElves;
  for (const People& people : kPeoples) {
    if (Contains(race, people.Within)) return people.Names;
  }
  return kHumans;
}

}  // namespace veld
