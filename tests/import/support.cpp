#include "support.h"

#include <stdexcept>

namespace tarvane::test {

Files SmallLeague() {
    Files files;
    files["Teams.csv"] =
        "yearID,lgID,teamID,franchID,divID,W,L,name\n"
        "1899,NL,OLD,OLD,,20,134,Old Town Spiders\n"
        "1930,NL,CHN,CHC,,90,64,Chicago Cubs\n"
        "1930,AL,BOS,BOS,,52,102,Boston Red Sox\n"
        "1950,AL,BOS,BOS,,94,60,Boston Red Sox\n";
    files["Batting.csv"] =
        "playerID,yearID,stint,teamID,lgID,G,AB,R,H,2B,3B,HR,RBI,SB,CS,BB,SO,IBB,HBP,SH,SF,GIDP\n"
        "shortst01,1930,1,BOS,AL,140,500,70,150,30,8,6,60,12,,50,40,,3,15,,\n"
        "outfiel01,1930,1,BOS,AL,150,550,90,170,35,10,20,100,5,7,60,50,,2,8,,\n"
        "benchma01,1930,1,BOS,AL,40,99,10,25,4,1,1,9,1,0,8,12,,0,2,,\n"
        "nevbatt01,1930,1,BOS,AL,9,0,4,0,0,0,0,0,1,0,0,0,,0,0,,\n"
        "startpi01,1930,1,BOS,AL,40,105,5,20,2,0,0,6,0,0,3,30,,0,9,,\n"
        "bothwpi01,1930,1,BOS,AL,20,20,1,3,0,0,0,1,0,0,1,9,,0,2,,\n"
        "hitspit01,1930,1,BOS,AL,90,250,40,80,12,4,7,44,2,2,20,22,,1,4,,\n"
        "fewoutp01,1930,1,BOS,AL,5,4,0,0,0,0,0,0,0,0,0,2,,0,0,,\n"
        "twoclub01,1930,1,BOS,AL,60,200,20,55,9,2,3,25,2,1,15,20,,1,3,,\n"
        "twoclub01,1930,2,CHN,NL,50,150,15,40,7,1,2,18,1,1,12,14,,0,2,,\n"
        "twospel01,1930,1,CHN,NL,30,100,10,30,5,1,1,12,0,0,9,10,,0,1,,\n"
        "twospel01,1930,3,CHN,NL,20,70,7,20,3,0,1,8,0,0,6,7,,0,1,,\n"
        "cubspit01,1930,1,CHN,NL,35,80,4,15,1,0,0,5,0,0,2,25,,0,5,,\n"
        "outfiel01,1950,1,BOS,AL,10,20,1,4,0,0,0,1,0,0,1,2,0,0,0,0,1\n"
        "startpi01,1950,1,BOS,AL,4,2,0,0,0,0,0,0,0,0,0,1,0,0,0,0,0\n"
        "shortst01,1899,1,OLD,NL,1,x,,,,,,,,,,,,,,,\n";
    files["Pitching.csv"] =
        "playerID,yearID,stint,teamID,lgID,W,L,G,GS,CG,SHO,SV,IPouts,H,ER,HR,BB,SO,BAOpp,ERA,IBB,WP,HBP,BK,BFP,GF,R\n"
        "startpi01,1930,1,BOS,AL,20,12,40,30,25,3,1,750,240,90,12,80,110,0.25,3.24,,4,3,0,1050,2,105\n"
        "bothwpi01,1930,1,BOS,AL,6,8,20,10,4,0,2,300,110,55,8,40,45,0,4.95,,2,1,0,0,8,0\n"
        "hitspit01,1930,1,BOS,AL,0,1,2,1,0,0,0,30,10,6,1,5,3,0,5.4,,0,0,0,45,1,7\n"
        "fewoutp01,1930,1,BOS,AL,0,0,5,0,0,0,0,30,12,9,2,8,4,0.3,8.1,,1,0,0,52,3,10\n"
        "nobatti01,1930,1,BOS,AL,3,2,30,0,0,0,9,90,30,12,2,10,20,0.26,3.6,,1,0,0,125,20,14\n"
        "cubspit01,1930,1,CHN,NL,18,9,35,24,20,2,1,720,230,80,10,70,100,9.99,3,,3,2,0,,5,95\n"
        "startpi01,1950,1,BOS,AL,0,1,4,1,0,0,0,24,11,7,1,4,2,0.333,7.88,0,0,0,0,38,2,7\n";
    files["Fielding.csv"] =
        "playerID,yearID,stint,teamID,lgID,POS,G,GS,InnOuts,PO,A,E,DP,PB,WP,SB,CS,ZR\n"
        "shortst01,1930,1,BOS,AL,2B,12,,,25,33,2,6,,,,,\n"
        "shortst01,1930,1,BOS,AL,SS,128,,,260,400,33,80,,,,,\n"
        "outfiel01,1930,1,BOS,AL,OF,149,,,300,12,9,3,,,,,\n"
        "outfiel01,1930,1,BOS,AL,1B,1,,,7,0,0,1,,,,,\n"
        "benchma01,1930,1,BOS,AL,C,35,,,90,20,4,2,5,,,,\n"
        "nevbatt01,1930,1,BOS,AL,2B,1,,,0,0,0,0,,,,,\n"
        "startpi01,1930,1,BOS,AL,P,40,,,10,50,2,3,,,,,\n"
        "bothwpi01,1930,1,BOS,AL,P,20,,,4,20,1,1,,,,,\n"
        "hitspit01,1930,1,BOS,AL,P,2,,,0,2,0,0,,,,,\n"
        "hitspit01,1930,1,BOS,AL,OF,70,,,120,5,4,1,,,,,\n"
        "fewoutp01,1930,1,BOS,AL,P,5,,,0,3,0,0,,,,,\n"
        "nobatti01,1930,1,BOS,AL,P,30,,,2,8,1,0,,,,,\n"
        "twoclub01,1930,1,BOS,AL,DH,5,,,,,,,,,,,\n"
        "twoclub01,1930,1,BOS,AL,3B,55,,,50,90,9,8,,,,,\n"
        "twoclub01,1930,2,CHN,NL,3B,40,,,35,70,6,5,,,,,\n"
        "twospel01,1930,1,CHN,NL,OF,28,,,50,2,1,0,,,,,\n"
        "cubspit01,1930,1,CHN,NL,P,35,,,12,48,2,4,,,,,\n"
        "outfiel01,1950,1,BOS,AL,OF,8,,,16,1,0,0,,,,,\n"
        "startpi01,1950,1,BOS,AL,P,4,,,0,2,0,0,,,,,\n";
    files["FieldingOF.csv"] =
        "playerID,yearID,stint,Glf,Gcf,Grf\n"
        "outfiel01,1930,1,100,,50\n"
        "hitspit01,1930,1,0,0,70\n";
    files["FieldingOFsplit.csv"] =
        "playerID,yearID,stint,teamID,lgID,POS,G,GS,InnOuts,PO,A,E,DP,PB,WP,SB,CS,ZR\n"
        "outfiel01,1950,1,BOS,AL,LF,2,,,,,,,,,,,\n"
        "outfiel01,1950,1,BOS,AL,RF,6,,,,,,,,,,,\n";
    files["People.csv"] =
        "playerID,birthYear,nameFirst,nameLast,nameGiven,bats,throws\n"
        "shortst01,1900,Sam,Shortstop,,R,R\n"
        "outfiel01,1901,Ossie,Outfield,,L,L\n"
        "benchma01,1902,Ben,Bench,,B,R\n"
        "nevbatt01,1903,Ned,Neverbat,,,\n"
        "startpi01,1904,\"Sid \"\"Ace\"\"\",Starter,,R,L\n"
        "bothwpi01,1905,Bo,Bothways,,L,R\n"
        "hitspit01,1906,Hal,Hitter,,L,R\n"
        "fewoutp01,1907,Fred,Fewouts,,R,R\n"
        "nobatti01,1908,Nob,Nobatting,,R,S\n"
        "twoclub01,1909,Bartholomew\xC3\xA9,Twoclubs-Verylongname,,R,R\n"
        "twospel01,1910,Tim,Twospells,,R,R\n"
        "cubspit01,1911,Cub,Pitcher,,R,R\n"
        "strange01,1911,Not,Wanted,,R,R\n";
    return files;
}

std::string Replaced(std::string text, const std::string& what, const std::string& with) {
    const std::size_t at = text.find(what);
    if (at == std::string::npos) throw std::logic_error("the fixture holds no " + what);
    return text.replace(at, what.size(), with);
}

}  // namespace tarvane::test
