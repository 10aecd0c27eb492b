// Written by Scripts/generate-html-entities from the HTML standard's table; not to be edited.

#include <VellarkDomain/Capture/HTML/HTMLEntityTable.hpp>

namespace vellark::HTMLEntityTable {

// clang-format off
const char* const names =
    "AEligAElig;AMPAMP;AacuteAacute;Abreve;AcircAcirc;Acy;Afr;AgraveAgrave;Alpha;Amacr;And;Aogon;Aopf;App"
    "lyFunction;AringAring;Ascr;Assign;AtildeAtilde;AumlAuml;Backslash;Barv;Barwed;Bcy;Because;Bernoullis"
    ";Beta;Bfr;Bopf;Breve;Bscr;Bumpeq;CHcy;COPYCOPY;Cacute;Cap;CapitalDifferentialD;Cayleys;Ccaron;Ccedil"
    "Ccedil;Ccirc;Cconint;Cdot;Cedilla;CenterDot;Cfr;Chi;CircleDot;CircleMinus;CirclePlus;CircleTimes;Clo"
    "ckwiseContourIntegral;CloseCurlyDoubleQuote;CloseCurlyQuote;Colon;Colone;Congruent;Conint;ContourInt"
    "egral;Copf;Coproduct;CounterClockwiseContourIntegral;Cross;Cscr;Cup;CupCap;DD;DDotrahd;DJcy;DScy;DZc"
    "y;Dagger;Darr;Dashv;Dcaron;Dcy;Del;Delta;Dfr;DiacriticalAcute;DiacriticalDot;DiacriticalDoubleAcute;"
    "DiacriticalGrave;DiacriticalTilde;Diamond;DifferentialD;Dopf;Dot;DotDot;DotEqual;DoubleContourIntegr"
    "al;DoubleDot;DoubleDownArrow;DoubleLeftArrow;DoubleLeftRightArrow;DoubleLeftTee;DoubleLongLeftArrow;"
    "DoubleLongLeftRightArrow;DoubleLongRightArrow;DoubleRightArrow;DoubleRightTee;DoubleUpArrow;DoubleUp"
    "DownArrow;DoubleVerticalBar;DownArrow;DownArrowBar;DownArrowUpArrow;DownBreve;DownLeftRightVector;Do"
    "wnLeftTeeVector;DownLeftVector;DownLeftVectorBar;DownRightTeeVector;DownRightVector;DownRightVectorB"
    "ar;DownTee;DownTeeArrow;Downarrow;Dscr;Dstrok;ENG;ETHETH;EacuteEacute;Ecaron;EcircEcirc;Ecy;Edot;Efr"
    ";EgraveEgrave;Element;Emacr;EmptySmallSquare;EmptyVerySmallSquare;Eogon;Eopf;Epsilon;Equal;EqualTild"
    "e;Equilibrium;Escr;Esim;Eta;EumlEuml;Exists;ExponentialE;Fcy;Ffr;FilledSmallSquare;FilledVerySmallSq"
    "uare;Fopf;ForAll;Fouriertrf;Fscr;GJcy;GTGT;Gamma;Gammad;Gbreve;Gcedil;Gcirc;Gcy;Gdot;Gfr;Gg;Gopf;Gre"
    "aterEqual;GreaterEqualLess;GreaterFullEqual;GreaterGreater;GreaterLess;GreaterSlantEqual;GreaterTild"
    "e;Gscr;Gt;HARDcy;Hacek;Hat;Hcirc;Hfr;HilbertSpace;Hopf;HorizontalLine;Hscr;Hstrok;HumpDownHump;HumpE"
    "qual;IEcy;IJlig;IOcy;IacuteIacute;IcircIcirc;Icy;Idot;Ifr;IgraveIgrave;Im;Imacr;ImaginaryI;Implies;I"
    "nt;Integral;Intersection;InvisibleComma;InvisibleTimes;Iogon;Iopf;Iota;Iscr;Itilde;Iukcy;IumlIuml;Jc"
    "irc;Jcy;Jfr;Jopf;Jscr;Jsercy;Jukcy;KHcy;KJcy;Kappa;Kcedil;Kcy;Kfr;Kopf;Kscr;LJcy;LTLT;Lacute;Lambda;"
    "Lang;Laplacetrf;Larr;Lcaron;Lcedil;Lcy;LeftAngleBracket;LeftArrow;LeftArrowBar;LeftArrowRightArrow;L"
    "eftCeiling;LeftDoubleBracket;LeftDownTeeVector;LeftDownVector;LeftDownVectorBar;LeftFloor;LeftRightA"
    "rrow;LeftRightVector;LeftTee;LeftTeeArrow;LeftTeeVector;LeftTriangle;LeftTriangleBar;LeftTriangleEqu"
    "al;LeftUpDownVector;LeftUpTeeVector;LeftUpVector;LeftUpVectorBar;LeftVector;LeftVectorBar;Leftarrow;"
    "Leftrightarrow;LessEqualGreater;LessFullEqual;LessGreater;LessLess;LessSlantEqual;LessTilde;Lfr;Ll;L"
    "leftarrow;Lmidot;LongLeftArrow;LongLeftRightArrow;LongRightArrow;Longleftarrow;Longleftrightarrow;Lo"
    "ngrightarrow;Lopf;LowerLeftArrow;LowerRightArrow;Lscr;Lsh;Lstrok;Lt;Map;Mcy;MediumSpace;Mellintrf;Mf"
    "r;MinusPlus;Mopf;Mscr;Mu;NJcy;Nacute;Ncaron;Ncedil;Ncy;NegativeMediumSpace;NegativeThickSpace;Negati"
    "veThinSpace;NegativeVeryThinSpace;NestedGreaterGreater;NestedLessLess;NewLine;Nfr;NoBreak;NonBreakin"
    "gSpace;Nopf;Not;NotCongruent;NotCupCap;NotDoubleVerticalBar;NotElement;NotEqual;NotEqualTilde;NotExi"
    "sts;NotGreater;NotGreaterEqual;NotGreaterFullEqual;NotGreaterGreater;NotGreaterLess;NotGreaterSlantE"
    "qual;NotGreaterTilde;NotHumpDownHump;NotHumpEqual;NotLeftTriangle;NotLeftTriangleBar;NotLeftTriangle"
    "Equal;NotLess;NotLessEqual;NotLessGreater;NotLessLess;NotLessSlantEqual;NotLessTilde;NotNestedGreate"
    "rGreater;NotNestedLessLess;NotPrecedes;NotPrecedesEqual;NotPrecedesSlantEqual;NotReverseElement;NotR"
    "ightTriangle;NotRightTriangleBar;NotRightTriangleEqual;NotSquareSubset;NotSquareSubsetEqual;NotSquar"
    "eSuperset;NotSquareSupersetEqual;NotSubset;NotSubsetEqual;NotSucceeds;NotSucceedsEqual;NotSucceedsSl"
    "antEqual;NotSucceedsTilde;NotSuperset;NotSupersetEqual;NotTilde;NotTildeEqual;NotTildeFullEqual;NotT"
    "ildeTilde;NotVerticalBar;Nscr;NtildeNtilde;Nu;OElig;OacuteOacute;OcircOcirc;Ocy;Odblac;Ofr;OgraveOgr"
    "ave;Omacr;Omega;Omicron;Oopf;OpenCurlyDoubleQuote;OpenCurlyQuote;Or;Oscr;OslashOslash;OtildeOtilde;O"
    "times;OumlOuml;OverBar;OverBrace;OverBracket;OverParenthesis;PartialD;Pcy;Pfr;Phi;Pi;PlusMinus;Poinc"
    "areplane;Popf;Pr;Precedes;PrecedesEqual;PrecedesSlantEqual;PrecedesTilde;Prime;Product;Proportion;Pr"
    "oportional;Pscr;Psi;QUOTQUOT;Qfr;Qopf;Qscr;RBarr;REGREG;Racute;Rang;Rarr;Rarrtl;Rcaron;Rcedil;Rcy;Re"
    ";ReverseElement;ReverseEquilibrium;ReverseUpEquilibrium;Rfr;Rho;RightAngleBracket;RightArrow;RightAr"
    "rowBar;RightArrowLeftArrow;RightCeiling;RightDoubleBracket;RightDownTeeVector;RightDownVector;RightD"
    "ownVectorBar;RightFloor;RightTee;RightTeeArrow;RightTeeVector;RightTriangle;RightTriangleBar;RightTr"
    "iangleEqual;RightUpDownVector;RightUpTeeVector;RightUpVector;RightUpVectorBar;RightVector;RightVecto"
    "rBar;Rightarrow;Ropf;RoundImplies;Rrightarrow;Rscr;Rsh;RuleDelayed;SHCHcy;SHcy;SOFTcy;Sacute;Sc;Scar"
    "on;Scedil;Scirc;Scy;Sfr;ShortDownArrow;ShortLeftArrow;ShortRightArrow;ShortUpArrow;Sigma;SmallCircle"
    ";Sopf;Sqrt;Square;SquareIntersection;SquareSubset;SquareSubsetEqual;SquareSuperset;SquareSupersetEqu"
    "al;SquareUnion;Sscr;Star;Sub;Subset;SubsetEqual;Succeeds;SucceedsEqual;SucceedsSlantEqual;SucceedsTi"
    "lde;SuchThat;Sum;Sup;Superset;SupersetEqual;Supset;THORNTHORN;TRADE;TSHcy;TScy;Tab;Tau;Tcaron;Tcedil"
    ";Tcy;Tfr;Therefore;Theta;ThickSpace;ThinSpace;Tilde;TildeEqual;TildeFullEqual;TildeTilde;Topf;Triple"
    "Dot;Tscr;Tstrok;UacuteUacute;Uarr;Uarrocir;Ubrcy;Ubreve;UcircUcirc;Ucy;Udblac;Ufr;UgraveUgrave;Umacr"
    ";UnderBar;UnderBrace;UnderBracket;UnderParenthesis;Union;UnionPlus;Uogon;Uopf;UpArrow;UpArrowBar;UpA"
    "rrowDownArrow;UpDownArrow;UpEquilibrium;UpTee;UpTeeArrow;Uparrow;Updownarrow;UpperLeftArrow;UpperRig"
    "htArrow;Upsi;Upsilon;Uring;Uscr;Utilde;UumlUuml;VDash;Vbar;Vcy;Vdash;Vdashl;Vee;Verbar;Vert;Vertical"
    "Bar;VerticalLine;VerticalSeparator;VerticalTilde;VeryThinSpace;Vfr;Vopf;Vscr;Vvdash;Wcirc;Wedge;Wfr;"
    "Wopf;Wscr;Xfr;Xi;Xopf;Xscr;YAcy;YIcy;YUcy;YacuteYacute;Ycirc;Ycy;Yfr;Yopf;Yscr;Yuml;ZHcy;Zacute;Zcar"
    "on;Zcy;Zdot;ZeroWidthSpace;Zeta;Zfr;Zopf;Zscr;aacuteaacute;abreve;ac;acE;acd;acircacirc;acuteacute;a"
    "cy;aeligaelig;af;afr;agraveagrave;alefsym;aleph;alpha;amacr;amalg;ampamp;and;andand;andd;andslope;an"
    "dv;ang;ange;angle;angmsd;angmsdaa;angmsdab;angmsdac;angmsdad;angmsdae;angmsdaf;angmsdag;angmsdah;ang"
    "rt;angrtvb;angrtvbd;angsph;angst;angzarr;aogon;aopf;ap;apE;apacir;ape;apid;apos;approx;approxeq;arin"
    "garing;ascr;ast;asymp;asympeq;atildeatilde;aumlauml;awconint;awint;bNot;backcong;backepsilon;backpri"
    "me;backsim;backsimeq;barvee;barwed;barwedge;bbrk;bbrktbrk;bcong;bcy;bdquo;becaus;because;bemptyv;bep"
    "si;bernou;beta;beth;between;bfr;bigcap;bigcirc;bigcup;bigodot;bigoplus;bigotimes;bigsqcup;bigstar;bi"
    "gtriangledown;bigtriangleup;biguplus;bigvee;bigwedge;bkarow;blacklozenge;blacksquare;blacktriangle;b"
    "lacktriangledown;blacktriangleleft;blacktriangleright;blank;blk12;blk14;blk34;block;bne;bnequiv;bnot"
    ";bopf;bot;bottom;bowtie;boxDL;boxDR;boxDl;boxDr;boxH;boxHD;boxHU;boxHd;boxHu;boxUL;boxUR;boxUl;boxUr"
    ";boxV;boxVH;boxVL;boxVR;boxVh;boxVl;boxVr;boxbox;boxdL;boxdR;boxdl;boxdr;boxh;boxhD;boxhU;boxhd;boxh"
    "u;boxminus;boxplus;boxtimes;boxuL;boxuR;boxul;boxur;boxv;boxvH;boxvL;boxvR;boxvh;boxvl;boxvr;bprime;"
    "breve;brvbarbrvbar;bscr;bsemi;bsim;bsime;bsol;bsolb;bsolhsub;bull;bullet;bump;bumpE;bumpe;bumpeq;cac"
    "ute;cap;capand;capbrcup;capcap;capcup;capdot;caps;caret;caron;ccaps;ccaron;ccedilccedil;ccirc;ccups;"
    "ccupssm;cdot;cedilcedil;cemptyv;centcent;centerdot;cfr;chcy;check;checkmark;chi;cir;cirE;circ;circeq"
    ";circlearrowleft;circlearrowright;circledR;circledS;circledast;circledcirc;circleddash;cire;cirfnint"
    ";cirmid;cirscir;clubs;clubsuit;colon;colone;coloneq;comma;commat;comp;compfn;complement;complexes;co"
    "ng;congdot;conint;copf;coprod;copycopy;copysr;crarr;cross;cscr;csub;csube;csup;csupe;ctdot;cudarrl;c"
    "udarrr;cuepr;cuesc;cularr;cularrp;cup;cupbrcap;cupcap;cupcup;cupdot;cupor;cups;curarr;curarrm;curlye"
    "qprec;curlyeqsucc;curlyvee;curlywedge;currencurren;curvearrowleft;curvearrowright;cuvee;cuwed;cwconi"
    "nt;cwint;cylcty;dArr;dHar;dagger;daleth;darr;dash;dashv;dbkarow;dblac;dcaron;dcy;dd;ddagger;ddarr;dd"
    "otseq;degdeg;delta;demptyv;dfisht;dfr;dharl;dharr;diam;diamond;diamondsuit;diams;die;digamma;disin;d"
    "iv;dividedivide;divideontimes;divonx;djcy;dlcorn;dlcrop;dollar;dopf;dot;doteq;doteqdot;dotminus;dotp"
    "lus;dotsquare;doublebarwedge;downarrow;downdownarrows;downharpoonleft;downharpoonright;drbkarow;drco"
    "rn;drcrop;dscr;dscy;dsol;dstrok;dtdot;dtri;dtrif;duarr;duhar;dwangle;dzcy;dzigrarr;eDDot;eDot;eacute"
    "eacute;easter;ecaron;ecir;ecircecirc;ecolon;ecy;edot;ee;efDot;efr;eg;egraveegrave;egs;egsdot;el;elin"
    "ters;ell;els;elsdot;emacr;empty;emptyset;emptyv;emsp13;emsp14;emsp;eng;ensp;eogon;eopf;epar;eparsl;e"
    "plus;epsi;epsilon;epsiv;eqcirc;eqcolon;eqsim;eqslantgtr;eqslantless;equals;equest;equiv;equivDD;eqvp"
    "arsl;erDot;erarr;escr;esdot;esim;eta;etheth;eumleuml;euro;excl;exist;expectation;exponentiale;fallin"
    "gdotseq;fcy;female;ffilig;fflig;ffllig;ffr;filig;fjlig;flat;fllig;fltns;fnof;fopf;forall;fork;forkv;"
    "fpartint;frac12frac12;frac13;frac14frac14;frac15;frac16;frac18;frac23;frac25;frac34frac34;frac35;fra"
    "c38;frac45;frac56;frac58;frac78;frasl;frown;fscr;gE;gEl;gacute;gamma;gammad;gap;gbreve;gcirc;gcy;gdo"
    "t;ge;gel;geq;geqq;geqslant;ges;gescc;gesdot;gesdoto;gesdotol;gesl;gesles;gfr;gg;ggg;gimel;gjcy;gl;gl"
    "E;gla;glj;gnE;gnap;gnapprox;gne;gneq;gneqq;gnsim;gopf;grave;gscr;gsim;gsime;gsiml;gtgt;gtcc;gtcir;gt"
    "dot;gtlPar;gtquest;gtrapprox;gtrarr;gtrdot;gtreqless;gtreqqless;gtrless;gtrsim;gvertneqq;gvnE;hArr;h"
    "airsp;half;hamilt;hardcy;harr;harrcir;harrw;hbar;hcirc;hearts;heartsuit;hellip;hercon;hfr;hksearow;h"
    "kswarow;hoarr;homtht;hookleftarrow;hookrightarrow;hopf;horbar;hscr;hslash;hstrok;hybull;hyphen;iacut"
    "eiacute;ic;icircicirc;icy;iecy;iexcliexcl;iff;ifr;igraveigrave;ii;iiiint;iiint;iinfin;iiota;ijlig;im"
    "acr;image;imagline;imagpart;imath;imof;imped;in;incare;infin;infintie;inodot;int;intcal;integers;int"
    "ercal;intlarhk;intprod;iocy;iogon;iopf;iota;iprod;iquestiquest;iscr;isin;isinE;isindot;isins;isinsv;"
    "isinv;it;itilde;iukcy;iumliuml;jcirc;jcy;jfr;jmath;jopf;jscr;jsercy;jukcy;kappa;kappav;kcedil;kcy;kf"
    "r;kgreen;khcy;kjcy;kopf;kscr;lAarr;lArr;lAtail;lBarr;lE;lEg;lHar;lacute;laemptyv;lagran;lambda;lang;"
    "langd;langle;lap;laquolaquo;larr;larrb;larrbfs;larrfs;larrhk;larrlp;larrpl;larrsim;larrtl;lat;latail"
    ";late;lates;lbarr;lbbrk;lbrace;lbrack;lbrke;lbrksld;lbrkslu;lcaron;lcedil;lceil;lcub;lcy;ldca;ldquo;"
    "ldquor;ldrdhar;ldrushar;ldsh;le;leftarrow;leftarrowtail;leftharpoondown;leftharpoonup;leftleftarrows"
    ";leftrightarrow;leftrightarrows;leftrightharpoons;leftrightsquigarrow;leftthreetimes;leg;leq;leqq;le"
    "qslant;les;lescc;lesdot;lesdoto;lesdotor;lesg;lesges;lessapprox;lessdot;lesseqgtr;lesseqqgtr;lessgtr"
    ";lesssim;lfisht;lfloor;lfr;lg;lgE;lhard;lharu;lharul;lhblk;ljcy;ll;llarr;llcorner;llhard;lltri;lmido"
    "t;lmoust;lmoustache;lnE;lnap;lnapprox;lne;lneq;lneqq;lnsim;loang;loarr;lobrk;longleftarrow;longleftr"
    "ightarrow;longmapsto;longrightarrow;looparrowleft;looparrowright;lopar;lopf;loplus;lotimes;lowast;lo"
    "wbar;loz;lozenge;lozf;lpar;lparlt;lrarr;lrcorner;lrhar;lrhard;lrm;lrtri;lsaquo;lscr;lsh;lsim;lsime;l"
    "simg;lsqb;lsquo;lsquor;lstrok;ltlt;ltcc;ltcir;ltdot;lthree;ltimes;ltlarr;ltquest;ltrPar;ltri;ltrie;l"
    "trif;lurdshar;luruhar;lvertneqq;lvnE;mDDot;macrmacr;male;malt;maltese;map;mapsto;mapstodown;mapstole"
    "ft;mapstoup;marker;mcomma;mcy;mdash;measuredangle;mfr;mho;micromicro;mid;midast;midcir;middotmiddot;"
    "minus;minusb;minusd;minusdu;mlcp;mldr;mnplus;models;mopf;mp;mscr;mstpos;mu;multimap;mumap;nGg;nGt;nG"
    "tv;nLeftarrow;nLeftrightarrow;nLl;nLt;nLtv;nRightarrow;nVDash;nVdash;nabla;nacute;nang;nap;napE;napi"
    "d;napos;napprox;natur;natural;naturals;nbspnbsp;nbump;nbumpe;ncap;ncaron;ncedil;ncong;ncongdot;ncup;"
    "ncy;ndash;ne;neArr;nearhk;nearr;nearrow;nedot;nequiv;nesear;nesim;nexist;nexists;nfr;ngE;nge;ngeq;ng"
    "eqq;ngeqslant;nges;ngsim;ngt;ngtr;nhArr;nharr;nhpar;ni;nis;nisd;niv;njcy;nlArr;nlE;nlarr;nldr;nle;nl"
    "eftarrow;nleftrightarrow;nleq;nleqq;nleqslant;nles;nless;nlsim;nlt;nltri;nltrie;nmid;nopf;notnot;not"
    "in;notinE;notindot;notinva;notinvb;notinvc;notni;notniva;notnivb;notnivc;npar;nparallel;nparsl;npart"
    ";npolint;npr;nprcue;npre;nprec;npreceq;nrArr;nrarr;nrarrc;nrarrw;nrightarrow;nrtri;nrtrie;nsc;nsccue"
    ";nsce;nscr;nshortmid;nshortparallel;nsim;nsime;nsimeq;nsmid;nspar;nsqsube;nsqsupe;nsub;nsubE;nsube;n"
    "subset;nsubseteq;nsubseteqq;nsucc;nsucceq;nsup;nsupE;nsupe;nsupset;nsupseteq;nsupseteqq;ntgl;ntilden"
    "tilde;ntlg;ntriangleleft;ntrianglelefteq;ntriangleright;ntrianglerighteq;nu;num;numero;numsp;nvDash;"
    "nvHarr;nvap;nvdash;nvge;nvgt;nvinfin;nvlArr;nvle;nvlt;nvltrie;nvrArr;nvrtrie;nvsim;nwArr;nwarhk;nwar"
    "r;nwarrow;nwnear;oS;oacuteoacute;oast;ocir;ocircocirc;ocy;odash;odblac;odiv;odot;odsold;oelig;ofcir;"
    "ofr;ogon;ograveograve;ogt;ohbar;ohm;oint;olarr;olcir;olcross;oline;olt;omacr;omega;omicron;omid;omin"
    "us;oopf;opar;operp;oplus;or;orarr;ord;order;orderof;ordfordf;ordmordm;origof;oror;orslope;orv;oscr;o"
    "slashoslash;osol;otildeotilde;otimes;otimesas;oumlouml;ovbar;par;parapara;parallel;parsim;parsl;part"
    ";pcy;percnt;period;permil;perp;pertenk;pfr;phi;phiv;phmmat;phone;pi;pitchfork;piv;planck;planckh;pla"
    "nkv;plus;plusacir;plusb;pluscir;plusdo;plusdu;pluse;plusmnplusmn;plussim;plustwo;pm;pointint;popf;po"
    "undpound;pr;prE;prap;prcue;pre;prec;precapprox;preccurlyeq;preceq;precnapprox;precneqq;precnsim;prec"
    "sim;prime;primes;prnE;prnap;prnsim;prod;profalar;profline;profsurf;prop;propto;prsim;prurel;pscr;psi"
    ";puncsp;qfr;qint;qopf;qprime;qscr;quaternions;quatint;quest;questeq;quotquot;rAarr;rArr;rAtail;rBarr"
    ";rHar;race;racute;radic;raemptyv;rang;rangd;range;rangle;raquoraquo;rarr;rarrap;rarrb;rarrbfs;rarrc;"
    "rarrfs;rarrhk;rarrlp;rarrpl;rarrsim;rarrtl;rarrw;ratail;ratio;rationals;rbarr;rbbrk;rbrace;rbrack;rb"
    "rke;rbrksld;rbrkslu;rcaron;rcedil;rceil;rcub;rcy;rdca;rdldhar;rdquo;rdquor;rdsh;real;realine;realpar"
    "t;reals;rect;regreg;rfisht;rfloor;rfr;rhard;rharu;rharul;rho;rhov;rightarrow;rightarrowtail;righthar"
    "poondown;rightharpoonup;rightleftarrows;rightleftharpoons;rightrightarrows;rightsquigarrow;rightthre"
    "etimes;ring;risingdotseq;rlarr;rlhar;rlm;rmoust;rmoustache;rnmid;roang;roarr;robrk;ropar;ropf;roplus"
    ";rotimes;rpar;rpargt;rppolint;rrarr;rsaquo;rscr;rsh;rsqb;rsquo;rsquor;rthree;rtimes;rtri;rtrie;rtrif"
    ";rtriltri;ruluhar;rx;sacute;sbquo;sc;scE;scap;scaron;sccue;sce;scedil;scirc;scnE;scnap;scnsim;scpoli"
    "nt;scsim;scy;sdot;sdotb;sdote;seArr;searhk;searr;searrow;sectsect;semi;seswar;setminus;setmn;sext;sf"
    "r;sfrown;sharp;shchcy;shcy;shortmid;shortparallel;shyshy;sigma;sigmaf;sigmav;sim;simdot;sime;simeq;s"
    "img;simgE;siml;simlE;simne;simplus;simrarr;slarr;smallsetminus;smashp;smeparsl;smid;smile;smt;smte;s"
    "mtes;softcy;sol;solb;solbar;sopf;spades;spadesuit;spar;sqcap;sqcaps;sqcup;sqcups;sqsub;sqsube;sqsubs"
    "et;sqsubseteq;sqsup;sqsupe;sqsupset;sqsupseteq;squ;square;squarf;squf;srarr;sscr;ssetmn;ssmile;sstar"
    "f;star;starf;straightepsilon;straightphi;strns;sub;subE;subdot;sube;subedot;submult;subnE;subne;subp"
    "lus;subrarr;subset;subseteq;subseteqq;subsetneq;subsetneqq;subsim;subsub;subsup;succ;succapprox;succ"
    "curlyeq;succeq;succnapprox;succneqq;succnsim;succsim;sum;sung;sup1sup1;sup2sup2;sup3sup3;sup;supE;su"
    "pdot;supdsub;supe;supedot;suphsol;suphsub;suplarr;supmult;supnE;supne;supplus;supset;supseteq;supset"
    "eqq;supsetneq;supsetneqq;supsim;supsub;supsup;swArr;swarhk;swarr;swarrow;swnwar;szligszlig;target;ta"
    "u;tbrk;tcaron;tcedil;tcy;tdot;telrec;tfr;there4;therefore;theta;thetasym;thetav;thickapprox;thicksim"
    ";thinsp;thkap;thksim;thornthorn;tilde;timestimes;timesb;timesbar;timesd;tint;toea;top;topbot;topcir;"
    "topf;topfork;tosa;tprime;trade;triangle;triangledown;triangleleft;trianglelefteq;triangleq;triangler"
    "ight;trianglerighteq;tridot;trie;triminus;triplus;trisb;tritime;trpezium;tscr;tscy;tshcy;tstrok;twix"
    "t;twoheadleftarrow;twoheadrightarrow;uArr;uHar;uacuteuacute;uarr;ubrcy;ubreve;ucircucirc;ucy;udarr;u"
    "dblac;udhar;ufisht;ufr;ugraveugrave;uharl;uharr;uhblk;ulcorn;ulcorner;ulcrop;ultri;umacr;umluml;uogo"
    "n;uopf;uparrow;updownarrow;upharpoonleft;upharpoonright;uplus;upsi;upsih;upsilon;upuparrows;urcorn;u"
    "rcorner;urcrop;uring;urtri;uscr;utdot;utilde;utri;utrif;uuarr;uumluuml;uwangle;vArr;vBar;vBarv;vDash"
    ";vangrt;varepsilon;varkappa;varnothing;varphi;varpi;varpropto;varr;varrho;varsigma;varsubsetneq;vars"
    "ubsetneqq;varsupsetneq;varsupsetneqq;vartheta;vartriangleleft;vartriangleright;vcy;vdash;vee;veebar;"
    "veeeq;vellip;verbar;vert;vfr;vltri;vnsub;vnsup;vopf;vprop;vrtri;vscr;vsubnE;vsubne;vsupnE;vsupne;vzi"
    "gzag;wcirc;wedbar;wedge;wedgeq;weierp;wfr;wopf;wp;wr;wreath;wscr;xcap;xcirc;xcup;xdtri;xfr;xhArr;xha"
    "rr;xi;xlArr;xlarr;xmap;xnis;xodot;xopf;xoplus;xotime;xrArr;xrarr;xscr;xsqcup;xuplus;xutri;xvee;xwedg"
    "e;yacuteyacute;yacy;ycirc;ycy;yenyen;yfr;yicy;yopf;yscr;yucy;yumlyuml;zacute;zcaron;zcy;zdot;zeetrf;"
    "zeta;zfr;zhcy;zigrarr;zopf;zscr;zwj;zwnj;";

const char* const values =
    "\x3C\xE2\x83\x92\x3D\xE2\x83\xA5\x3E\xE2\x83\x92\x66\x6A"
    "\xE2\x81\x9F\xE2\x80\x8A\xE2\x86\x9D\xCC\xB8\xE2\x88\x82\xCC\xB8\xE2\x88\xA0\xE2\x83\x92"
    "\xE2\x88\xA9\xEF\xB8\x80\xE2\x88\xAA\xEF\xB8\x80\xE2\x88\xBC\xE2\x83\x92\xE2\x88\xBD\xCC\xB1"
    "\xE2\x88\xBE\xCC\xB3\xE2\x89\x82\xCC\xB8\xE2\x89\x8B\xCC\xB8\xE2\x89\x8D\xE2\x83\x92"
    "\xE2\x89\x8E\xCC\xB8\xE2\x89\x8F\xCC\xB8\xE2\x89\x90\xCC\xB8\xE2\x89\xA1\xE2\x83\xA5"
    "\xE2\x89\xA4\xE2\x83\x92\xE2\x89\xA5\xE2\x83\x92\xE2\x89\xA6\xCC\xB8\xE2\x89\xA7\xCC\xB8"
    "\xE2\x89\xA8\xEF\xB8\x80\xE2\x89\xA9\xEF\xB8\x80\xE2\x89\xAA\xCC\xB8\xE2\x89\xAA\xE2\x83\x92"
    "\xE2\x89\xAB\xCC\xB8\xE2\x89\xAB\xE2\x83\x92\xE2\x89\xBF\xCC\xB8\xE2\x8A\x82\xE2\x83\x92"
    "\xE2\x8A\x83\xE2\x83\x92\xE2\x8A\x8A\xEF\xB8\x80\xE2\x8A\x8B\xEF\xB8\x80\xE2\x8A\x8F\xCC\xB8"
    "\xE2\x8A\x90\xCC\xB8\xE2\x8A\x93\xEF\xB8\x80\xE2\x8A\x94\xEF\xB8\x80\xE2\x8A\xB4\xE2\x83\x92"
    "\xE2\x8A\xB5\xE2\x83\x92\xE2\x8B\x98\xCC\xB8\xE2\x8B\x99\xCC\xB8\xE2\x8B\x9A\xEF\xB8\x80"
    "\xE2\x8B\x9B\xEF\xB8\x80\xE2\x8B\xB5\xCC\xB8\xE2\x8B\xB9\xCC\xB8\xE2\xA4\xB3\xCC\xB8"
    "\xE2\xA7\x8F\xCC\xB8\xE2\xA7\x90\xCC\xB8\xE2\xA9\xAD\xCC\xB8\xE2\xA9\xB0\xCC\xB8"
    "\xE2\xA9\xBD\xCC\xB8\xE2\xA9\xBE\xCC\xB8\xE2\xAA\xA1\xCC\xB8\xE2\xAA\xA2\xCC\xB8"
    "\xE2\xAA\xAC\xEF\xB8\x80\xE2\xAA\xAD\xEF\xB8\x80\xE2\xAA\xAF\xCC\xB8\xE2\xAA\xB0\xCC\xB8"
    "\xE2\xAB\x85\xCC\xB8\xE2\xAB\x86\xCC\xB8\xE2\xAB\x8B\xEF\xB8\x80\xE2\xAB\x8C\xEF\xB8\x80"
    "\xE2\xAB\xBD\xE2\x83\xA5\x09\x0A\x21\x22\x23\x24"
    "\x25\x26\x27\x28\x29\x2A\x2B\x2C"
    "\x2E\x2F\x3A\x3B\x3C\x3D\x3E\x3F"
    "\x40\x5B\x5C\x5D\x5E\x5F\x60\x7B"
    "\x7C\x7D\xC2\xA0\xC2\xA1\xC2\xA2\xC2\xA3\xC2\xA4\xC2\xA5"
    "\xC2\xA6\xC2\xA7\xC2\xA8\xC2\xA9\xC2\xAA\xC2\xAB\xC2\xAC\xC2\xAD"
    "\xC2\xAE\xC2\xAF\xC2\xB0\xC2\xB1\xC2\xB2\xC2\xB3\xC2\xB4\xC2\xB5"
    "\xC2\xB6\xC2\xB7\xC2\xB8\xC2\xB9\xC2\xBA\xC2\xBB\xC2\xBC\xC2\xBD"
    "\xC2\xBE\xC2\xBF\xC3\x80\xC3\x81\xC3\x82\xC3\x83\xC3\x84\xC3\x85"
    "\xC3\x86\xC3\x87\xC3\x88\xC3\x89\xC3\x8A\xC3\x8B\xC3\x8C\xC3\x8D"
    "\xC3\x8E\xC3\x8F\xC3\x90\xC3\x91\xC3\x92\xC3\x93\xC3\x94\xC3\x95"
    "\xC3\x96\xC3\x97\xC3\x98\xC3\x99\xC3\x9A\xC3\x9B\xC3\x9C\xC3\x9D"
    "\xC3\x9E\xC3\x9F\xC3\xA0\xC3\xA1\xC3\xA2\xC3\xA3\xC3\xA4\xC3\xA5"
    "\xC3\xA6\xC3\xA7\xC3\xA8\xC3\xA9\xC3\xAA\xC3\xAB\xC3\xAC\xC3\xAD"
    "\xC3\xAE\xC3\xAF\xC3\xB0\xC3\xB1\xC3\xB2\xC3\xB3\xC3\xB4\xC3\xB5"
    "\xC3\xB6\xC3\xB7\xC3\xB8\xC3\xB9\xC3\xBA\xC3\xBB\xC3\xBC\xC3\xBD"
    "\xC3\xBE\xC3\xBF\xC4\x80\xC4\x81\xC4\x82\xC4\x83\xC4\x84\xC4\x85"
    "\xC4\x86\xC4\x87\xC4\x88\xC4\x89\xC4\x8A\xC4\x8B\xC4\x8C\xC4\x8D"
    "\xC4\x8E\xC4\x8F\xC4\x90\xC4\x91\xC4\x92\xC4\x93\xC4\x96\xC4\x97"
    "\xC4\x98\xC4\x99\xC4\x9A\xC4\x9B\xC4\x9C\xC4\x9D\xC4\x9E\xC4\x9F"
    "\xC4\xA0\xC4\xA1\xC4\xA2\xC4\xA4\xC4\xA5\xC4\xA6\xC4\xA7\xC4\xA8"
    "\xC4\xA9\xC4\xAA\xC4\xAB\xC4\xAE\xC4\xAF\xC4\xB0\xC4\xB1\xC4\xB2"
    "\xC4\xB3\xC4\xB4\xC4\xB5\xC4\xB6\xC4\xB7\xC4\xB8\xC4\xB9\xC4\xBA"
    "\xC4\xBB\xC4\xBC\xC4\xBD\xC4\xBE\xC4\xBF\xC5\x80\xC5\x81\xC5\x82"
    "\xC5\x83\xC5\x84\xC5\x85\xC5\x86\xC5\x87\xC5\x88\xC5\x89\xC5\x8A"
    "\xC5\x8B\xC5\x8C\xC5\x8D\xC5\x90\xC5\x91\xC5\x92\xC5\x93\xC5\x94"
    "\xC5\x95\xC5\x96\xC5\x97\xC5\x98\xC5\x99\xC5\x9A\xC5\x9B\xC5\x9C"
    "\xC5\x9D\xC5\x9E\xC5\x9F\xC5\xA0\xC5\xA1\xC5\xA2\xC5\xA3\xC5\xA4"
    "\xC5\xA5\xC5\xA6\xC5\xA7\xC5\xA8\xC5\xA9\xC5\xAA\xC5\xAB\xC5\xAC"
    "\xC5\xAD\xC5\xAE\xC5\xAF\xC5\xB0\xC5\xB1\xC5\xB2\xC5\xB3\xC5\xB4"
    "\xC5\xB5\xC5\xB6\xC5\xB7\xC5\xB8\xC5\xB9\xC5\xBA\xC5\xBB\xC5\xBC"
    "\xC5\xBD\xC5\xBE\xC6\x92\xC6\xB5\xC7\xB5\xC8\xB7\xCB\x86\xCB\x87"
    "\xCB\x98\xCB\x99\xCB\x9A\xCB\x9B\xCB\x9C\xCB\x9D\xCC\x91\xCE\x91"
    "\xCE\x92\xCE\x93\xCE\x94\xCE\x95\xCE\x96\xCE\x97\xCE\x98\xCE\x99"
    "\xCE\x9A\xCE\x9B\xCE\x9C\xCE\x9D\xCE\x9E\xCE\x9F\xCE\xA0\xCE\xA1"
    "\xCE\xA3\xCE\xA4\xCE\xA5\xCE\xA6\xCE\xA7\xCE\xA8\xCE\xA9\xCE\xB1"
    "\xCE\xB2\xCE\xB3\xCE\xB4\xCE\xB5\xCE\xB6\xCE\xB7\xCE\xB8\xCE\xB9"
    "\xCE\xBA\xCE\xBB\xCE\xBC\xCE\xBD\xCE\xBE\xCE\xBF\xCF\x80\xCF\x81"
    "\xCF\x82\xCF\x83\xCF\x84\xCF\x85\xCF\x86\xCF\x87\xCF\x88\xCF\x89"
    "\xCF\x91\xCF\x92\xCF\x95\xCF\x96\xCF\x9C\xCF\x9D\xCF\xB0\xCF\xB1"
    "\xCF\xB5\xCF\xB6\xD0\x81\xD0\x82\xD0\x83\xD0\x84\xD0\x85\xD0\x86"
    "\xD0\x87\xD0\x88\xD0\x89\xD0\x8A\xD0\x8B\xD0\x8C\xD0\x8E\xD0\x8F"
    "\xD0\x90\xD0\x91\xD0\x92\xD0\x93\xD0\x94\xD0\x95\xD0\x96\xD0\x97"
    "\xD0\x98\xD0\x99\xD0\x9A\xD0\x9B\xD0\x9C\xD0\x9D\xD0\x9E\xD0\x9F"
    "\xD0\xA0\xD0\xA1\xD0\xA2\xD0\xA3\xD0\xA4\xD0\xA5\xD0\xA6\xD0\xA7"
    "\xD0\xA8\xD0\xA9\xD0\xAA\xD0\xAB\xD0\xAC\xD0\xAD\xD0\xAE\xD0\xAF"
    "\xD0\xB0\xD0\xB1\xD0\xB2\xD0\xB3\xD0\xB4\xD0\xB5\xD0\xB6\xD0\xB7"
    "\xD0\xB8\xD0\xB9\xD0\xBA\xD0\xBB\xD0\xBC\xD0\xBD\xD0\xBE\xD0\xBF"
    "\xD1\x80\xD1\x81\xD1\x82\xD1\x83\xD1\x84\xD1\x85\xD1\x86\xD1\x87"
    "\xD1\x88\xD1\x89\xD1\x8A\xD1\x8B\xD1\x8C\xD1\x8D\xD1\x8E\xD1\x8F"
    "\xD1\x91\xD1\x92\xD1\x93\xD1\x94\xD1\x95\xD1\x96\xD1\x97\xD1\x98"
    "\xD1\x99\xD1\x9A\xD1\x9B\xD1\x9C\xD1\x9E\xD1\x9F\xE2\x80\x82\xE2\x80\x83"
    "\xE2\x80\x84\xE2\x80\x85\xE2\x80\x87\xE2\x80\x88\xE2\x80\x89\xE2\x80\x8A\xE2\x80\x8B\xE2\x80\x8C"
    "\xE2\x80\x8D\xE2\x80\x8E\xE2\x80\x8F\xE2\x80\x90\xE2\x80\x93\xE2\x80\x94\xE2\x80\x95\xE2\x80\x96"
    "\xE2\x80\x98\xE2\x80\x99\xE2\x80\x9A\xE2\x80\x9C\xE2\x80\x9D\xE2\x80\x9E\xE2\x80\xA0\xE2\x80\xA1"
    "\xE2\x80\xA2\xE2\x80\xA5\xE2\x80\xA6\xE2\x80\xB0\xE2\x80\xB1\xE2\x80\xB2\xE2\x80\xB3\xE2\x80\xB4"
    "\xE2\x80\xB5\xE2\x80\xB9\xE2\x80\xBA\xE2\x80\xBE\xE2\x81\x81\xE2\x81\x83\xE2\x81\x84\xE2\x81\x8F"
    "\xE2\x81\x97\xE2\x81\x9F\xE2\x81\xA0\xE2\x81\xA1\xE2\x81\xA2\xE2\x81\xA3\xE2\x82\xAC\xE2\x83\x9B"
    "\xE2\x83\x9C\xE2\x84\x82\xE2\x84\x85\xE2\x84\x8A\xE2\x84\x8B\xE2\x84\x8C\xE2\x84\x8D\xE2\x84\x8E"
    "\xE2\x84\x8F\xE2\x84\x90\xE2\x84\x91\xE2\x84\x92\xE2\x84\x93\xE2\x84\x95\xE2\x84\x96\xE2\x84\x97"
    "\xE2\x84\x98\xE2\x84\x99\xE2\x84\x9A\xE2\x84\x9B\xE2\x84\x9C\xE2\x84\x9D\xE2\x84\x9E\xE2\x84\xA2"
    "\xE2\x84\xA4\xE2\x84\xA7\xE2\x84\xA8\xE2\x84\xA9\xE2\x84\xAC\xE2\x84\xAD\xE2\x84\xAF\xE2\x84\xB0"
    "\xE2\x84\xB1\xE2\x84\xB3\xE2\x84\xB4\xE2\x84\xB5\xE2\x84\xB6\xE2\x84\xB7\xE2\x84\xB8\xE2\x85\x85"
    "\xE2\x85\x86\xE2\x85\x87\xE2\x85\x88\xE2\x85\x93\xE2\x85\x94\xE2\x85\x95\xE2\x85\x96\xE2\x85\x97"
    "\xE2\x85\x98\xE2\x85\x99\xE2\x85\x9A\xE2\x85\x9B\xE2\x85\x9C\xE2\x85\x9D\xE2\x85\x9E\xE2\x86\x90"
    "\xE2\x86\x91\xE2\x86\x92\xE2\x86\x93\xE2\x86\x94\xE2\x86\x95\xE2\x86\x96\xE2\x86\x97\xE2\x86\x98"
    "\xE2\x86\x99\xE2\x86\x9A\xE2\x86\x9B\xE2\x86\x9D\xE2\x86\x9E\xE2\x86\x9F\xE2\x86\xA0\xE2\x86\xA1"
    "\xE2\x86\xA2\xE2\x86\xA3\xE2\x86\xA4\xE2\x86\xA5\xE2\x86\xA6\xE2\x86\xA7\xE2\x86\xA9\xE2\x86\xAA"
    "\xE2\x86\xAB\xE2\x86\xAC\xE2\x86\xAD\xE2\x86\xAE\xE2\x86\xB0\xE2\x86\xB1\xE2\x86\xB2\xE2\x86\xB3"
    "\xE2\x86\xB5\xE2\x86\xB6\xE2\x86\xB7\xE2\x86\xBA\xE2\x86\xBB\xE2\x86\xBC\xE2\x86\xBD\xE2\x86\xBE"
    "\xE2\x86\xBF\xE2\x87\x80\xE2\x87\x81\xE2\x87\x82\xE2\x87\x83\xE2\x87\x84\xE2\x87\x85\xE2\x87\x86"
    "\xE2\x87\x87\xE2\x87\x88\xE2\x87\x89\xE2\x87\x8A\xE2\x87\x8B\xE2\x87\x8C\xE2\x87\x8D\xE2\x87\x8E"
    "\xE2\x87\x8F\xE2\x87\x90\xE2\x87\x91\xE2\x87\x92\xE2\x87\x93\xE2\x87\x94\xE2\x87\x95\xE2\x87\x96"
    "\xE2\x87\x97\xE2\x87\x98\xE2\x87\x99\xE2\x87\x9A\xE2\x87\x9B\xE2\x87\x9D\xE2\x87\xA4\xE2\x87\xA5"
    "\xE2\x87\xB5\xE2\x87\xBD\xE2\x87\xBE\xE2\x87\xBF\xE2\x88\x80\xE2\x88\x81\xE2\x88\x82\xE2\x88\x83"
    "\xE2\x88\x84\xE2\x88\x85\xE2\x88\x87\xE2\x88\x88\xE2\x88\x89\xE2\x88\x8B\xE2\x88\x8C\xE2\x88\x8F"
    "\xE2\x88\x90\xE2\x88\x91\xE2\x88\x92\xE2\x88\x93\xE2\x88\x94\xE2\x88\x96\xE2\x88\x97\xE2\x88\x98"
    "\xE2\x88\x9A\xE2\x88\x9D\xE2\x88\x9E\xE2\x88\x9F\xE2\x88\xA0\xE2\x88\xA1\xE2\x88\xA2\xE2\x88\xA3"
    "\xE2\x88\xA4\xE2\x88\xA5\xE2\x88\xA6\xE2\x88\xA7\xE2\x88\xA8\xE2\x88\xA9\xE2\x88\xAA\xE2\x88\xAB"
    "\xE2\x88\xAC\xE2\x88\xAD\xE2\x88\xAE\xE2\x88\xAF\xE2\x88\xB0\xE2\x88\xB1\xE2\x88\xB2\xE2\x88\xB3"
    "\xE2\x88\xB4\xE2\x88\xB5\xE2\x88\xB6\xE2\x88\xB7\xE2\x88\xB8\xE2\x88\xBA\xE2\x88\xBB\xE2\x88\xBC"
    "\xE2\x88\xBD\xE2\x88\xBE\xE2\x88\xBF\xE2\x89\x80\xE2\x89\x81\xE2\x89\x82\xE2\x89\x83\xE2\x89\x84"
    "\xE2\x89\x85\xE2\x89\x86\xE2\x89\x87\xE2\x89\x88\xE2\x89\x89\xE2\x89\x8A\xE2\x89\x8B\xE2\x89\x8C"
    "\xE2\x89\x8D\xE2\x89\x8E\xE2\x89\x8F\xE2\x89\x90\xE2\x89\x91\xE2\x89\x92\xE2\x89\x93\xE2\x89\x94"
    "\xE2\x89\x95\xE2\x89\x96\xE2\x89\x97\xE2\x89\x99\xE2\x89\x9A\xE2\x89\x9C\xE2\x89\x9F\xE2\x89\xA0"
    "\xE2\x89\xA1\xE2\x89\xA2\xE2\x89\xA4\xE2\x89\xA5\xE2\x89\xA6\xE2\x89\xA7\xE2\x89\xA8\xE2\x89\xA9"
    "\xE2\x89\xAA\xE2\x89\xAB\xE2\x89\xAC\xE2\x89\xAD\xE2\x89\xAE\xE2\x89\xAF\xE2\x89\xB0\xE2\x89\xB1"
    "\xE2\x89\xB2\xE2\x89\xB3\xE2\x89\xB4\xE2\x89\xB5\xE2\x89\xB6\xE2\x89\xB7\xE2\x89\xB8\xE2\x89\xB9"
    "\xE2\x89\xBA\xE2\x89\xBB\xE2\x89\xBC\xE2\x89\xBD\xE2\x89\xBE\xE2\x89\xBF\xE2\x8A\x80\xE2\x8A\x81"
    "\xE2\x8A\x82\xE2\x8A\x83\xE2\x8A\x84\xE2\x8A\x85\xE2\x8A\x86\xE2\x8A\x87\xE2\x8A\x88\xE2\x8A\x89"
    "\xE2\x8A\x8A\xE2\x8A\x8B\xE2\x8A\x8D\xE2\x8A\x8E\xE2\x8A\x8F\xE2\x8A\x90\xE2\x8A\x91\xE2\x8A\x92"
    "\xE2\x8A\x93\xE2\x8A\x94\xE2\x8A\x95\xE2\x8A\x96\xE2\x8A\x97\xE2\x8A\x98\xE2\x8A\x99\xE2\x8A\x9A"
    "\xE2\x8A\x9B\xE2\x8A\x9D\xE2\x8A\x9E\xE2\x8A\x9F\xE2\x8A\xA0\xE2\x8A\xA1\xE2\x8A\xA2\xE2\x8A\xA3"
    "\xE2\x8A\xA4\xE2\x8A\xA5\xE2\x8A\xA7\xE2\x8A\xA8\xE2\x8A\xA9\xE2\x8A\xAA\xE2\x8A\xAB\xE2\x8A\xAC"
    "\xE2\x8A\xAD\xE2\x8A\xAE\xE2\x8A\xAF\xE2\x8A\xB0\xE2\x8A\xB2\xE2\x8A\xB3\xE2\x8A\xB4\xE2\x8A\xB5"
    "\xE2\x8A\xB6\xE2\x8A\xB7\xE2\x8A\xB8\xE2\x8A\xB9\xE2\x8A\xBA\xE2\x8A\xBB\xE2\x8A\xBD\xE2\x8A\xBE"
    "\xE2\x8A\xBF\xE2\x8B\x80\xE2\x8B\x81\xE2\x8B\x82\xE2\x8B\x83\xE2\x8B\x84\xE2\x8B\x85\xE2\x8B\x86"
    "\xE2\x8B\x87\xE2\x8B\x88\xE2\x8B\x89\xE2\x8B\x8A\xE2\x8B\x8B\xE2\x8B\x8C\xE2\x8B\x8D\xE2\x8B\x8E"
    "\xE2\x8B\x8F\xE2\x8B\x90\xE2\x8B\x91\xE2\x8B\x92\xE2\x8B\x93\xE2\x8B\x94\xE2\x8B\x95\xE2\x8B\x96"
    "\xE2\x8B\x97\xE2\x8B\x98\xE2\x8B\x99\xE2\x8B\x9A\xE2\x8B\x9B\xE2\x8B\x9E\xE2\x8B\x9F\xE2\x8B\xA0"
    "\xE2\x8B\xA1\xE2\x8B\xA2\xE2\x8B\xA3\xE2\x8B\xA6\xE2\x8B\xA7\xE2\x8B\xA8\xE2\x8B\xA9\xE2\x8B\xAA"
    "\xE2\x8B\xAB\xE2\x8B\xAC\xE2\x8B\xAD\xE2\x8B\xAE\xE2\x8B\xAF\xE2\x8B\xB0\xE2\x8B\xB1\xE2\x8B\xB2"
    "\xE2\x8B\xB3\xE2\x8B\xB4\xE2\x8B\xB5\xE2\x8B\xB6\xE2\x8B\xB7\xE2\x8B\xB9\xE2\x8B\xBA\xE2\x8B\xBB"
    "\xE2\x8B\xBC\xE2\x8B\xBD\xE2\x8B\xBE\xE2\x8C\x85\xE2\x8C\x86\xE2\x8C\x88\xE2\x8C\x89\xE2\x8C\x8A"
    "\xE2\x8C\x8B\xE2\x8C\x8C\xE2\x8C\x8D\xE2\x8C\x8E\xE2\x8C\x8F\xE2\x8C\x90\xE2\x8C\x92\xE2\x8C\x93"
    "\xE2\x8C\x95\xE2\x8C\x96\xE2\x8C\x9C\xE2\x8C\x9D\xE2\x8C\x9E\xE2\x8C\x9F\xE2\x8C\xA2\xE2\x8C\xA3"
    "\xE2\x8C\xAD\xE2\x8C\xAE\xE2\x8C\xB6\xE2\x8C\xBD\xE2\x8C\xBF\xE2\x8D\xBC\xE2\x8E\xB0\xE2\x8E\xB1"
    "\xE2\x8E\xB4\xE2\x8E\xB5\xE2\x8E\xB6\xE2\x8F\x9C\xE2\x8F\x9D\xE2\x8F\x9E\xE2\x8F\x9F\xE2\x8F\xA2"
    "\xE2\x8F\xA7\xE2\x90\xA3\xE2\x93\x88\xE2\x94\x80\xE2\x94\x82\xE2\x94\x8C\xE2\x94\x90\xE2\x94\x94"
    "\xE2\x94\x98\xE2\x94\x9C\xE2\x94\xA4\xE2\x94\xAC\xE2\x94\xB4\xE2\x94\xBC\xE2\x95\x90\xE2\x95\x91"
    "\xE2\x95\x92\xE2\x95\x93\xE2\x95\x94\xE2\x95\x95\xE2\x95\x96\xE2\x95\x97\xE2\x95\x98\xE2\x95\x99"
    "\xE2\x95\x9A\xE2\x95\x9B\xE2\x95\x9C\xE2\x95\x9D\xE2\x95\x9E\xE2\x95\x9F\xE2\x95\xA0\xE2\x95\xA1"
    "\xE2\x95\xA2\xE2\x95\xA3\xE2\x95\xA4\xE2\x95\xA5\xE2\x95\xA6\xE2\x95\xA7\xE2\x95\xA8\xE2\x95\xA9"
    "\xE2\x95\xAA\xE2\x95\xAB\xE2\x95\xAC\xE2\x96\x80\xE2\x96\x84\xE2\x96\x88\xE2\x96\x91\xE2\x96\x92"
    "\xE2\x96\x93\xE2\x96\xA1\xE2\x96\xAA\xE2\x96\xAB\xE2\x96\xAD\xE2\x96\xAE\xE2\x96\xB1\xE2\x96\xB3"
    "\xE2\x96\xB4\xE2\x96\xB5\xE2\x96\xB8\xE2\x96\xB9\xE2\x96\xBD\xE2\x96\xBE\xE2\x96\xBF\xE2\x97\x82"
    "\xE2\x97\x83\xE2\x97\x8A\xE2\x97\x8B\xE2\x97\xAC\xE2\x97\xAF\xE2\x97\xB8\xE2\x97\xB9\xE2\x97\xBA"
    "\xE2\x97\xBB\xE2\x97\xBC\xE2\x98\x85\xE2\x98\x86\xE2\x98\x8E\xE2\x99\x80\xE2\x99\x82\xE2\x99\xA0"
    "\xE2\x99\xA3\xE2\x99\xA5\xE2\x99\xA6\xE2\x99\xAA\xE2\x99\xAD\xE2\x99\xAE\xE2\x99\xAF\xE2\x9C\x93"
    "\xE2\x9C\x97\xE2\x9C\xA0\xE2\x9C\xB6\xE2\x9D\x98\xE2\x9D\xB2\xE2\x9D\xB3\xE2\x9F\x88\xE2\x9F\x89"
    "\xE2\x9F\xA6\xE2\x9F\xA7\xE2\x9F\xA8\xE2\x9F\xA9\xE2\x9F\xAA\xE2\x9F\xAB\xE2\x9F\xAC\xE2\x9F\xAD"
    "\xE2\x9F\xB5\xE2\x9F\xB6\xE2\x9F\xB7\xE2\x9F\xB8\xE2\x9F\xB9\xE2\x9F\xBA\xE2\x9F\xBC\xE2\x9F\xBF"
    "\xE2\xA4\x82\xE2\xA4\x83\xE2\xA4\x84\xE2\xA4\x85\xE2\xA4\x8C\xE2\xA4\x8D\xE2\xA4\x8E\xE2\xA4\x8F"
    "\xE2\xA4\x90\xE2\xA4\x91\xE2\xA4\x92\xE2\xA4\x93\xE2\xA4\x96\xE2\xA4\x99\xE2\xA4\x9A\xE2\xA4\x9B"
    "\xE2\xA4\x9C\xE2\xA4\x9D\xE2\xA4\x9E\xE2\xA4\x9F\xE2\xA4\xA0\xE2\xA4\xA3\xE2\xA4\xA4\xE2\xA4\xA5"
    "\xE2\xA4\xA6\xE2\xA4\xA7\xE2\xA4\xA8\xE2\xA4\xA9\xE2\xA4\xAA\xE2\xA4\xB3\xE2\xA4\xB5\xE2\xA4\xB6"
    "\xE2\xA4\xB7\xE2\xA4\xB8\xE2\xA4\xB9\xE2\xA4\xBC\xE2\xA4\xBD\xE2\xA5\x85\xE2\xA5\x88\xE2\xA5\x89"
    "\xE2\xA5\x8A\xE2\xA5\x8B\xE2\xA5\x8E\xE2\xA5\x8F\xE2\xA5\x90\xE2\xA5\x91\xE2\xA5\x92\xE2\xA5\x93"
    "\xE2\xA5\x94\xE2\xA5\x95\xE2\xA5\x96\xE2\xA5\x97\xE2\xA5\x98\xE2\xA5\x99\xE2\xA5\x9A\xE2\xA5\x9B"
    "\xE2\xA5\x9C\xE2\xA5\x9D\xE2\xA5\x9E\xE2\xA5\x9F\xE2\xA5\xA0\xE2\xA5\xA1\xE2\xA5\xA2\xE2\xA5\xA3"
    "\xE2\xA5\xA4\xE2\xA5\xA5\xE2\xA5\xA6\xE2\xA5\xA7\xE2\xA5\xA8\xE2\xA5\xA9\xE2\xA5\xAA\xE2\xA5\xAB"
    "\xE2\xA5\xAC\xE2\xA5\xAD\xE2\xA5\xAE\xE2\xA5\xAF\xE2\xA5\xB0\xE2\xA5\xB1\xE2\xA5\xB2\xE2\xA5\xB3"
    "\xE2\xA5\xB4\xE2\xA5\xB5\xE2\xA5\xB6\xE2\xA5\xB8\xE2\xA5\xB9\xE2\xA5\xBB\xE2\xA5\xBC\xE2\xA5\xBD"
    "\xE2\xA5\xBE\xE2\xA5\xBF\xE2\xA6\x85\xE2\xA6\x86\xE2\xA6\x8B\xE2\xA6\x8C\xE2\xA6\x8D\xE2\xA6\x8E"
    "\xE2\xA6\x8F\xE2\xA6\x90\xE2\xA6\x91\xE2\xA6\x92\xE2\xA6\x93\xE2\xA6\x94\xE2\xA6\x95\xE2\xA6\x96"
    "\xE2\xA6\x9A\xE2\xA6\x9C\xE2\xA6\x9D\xE2\xA6\xA4\xE2\xA6\xA5\xE2\xA6\xA6\xE2\xA6\xA7\xE2\xA6\xA8"
    "\xE2\xA6\xA9\xE2\xA6\xAA\xE2\xA6\xAB\xE2\xA6\xAC\xE2\xA6\xAD\xE2\xA6\xAE\xE2\xA6\xAF\xE2\xA6\xB0"
    "\xE2\xA6\xB1\xE2\xA6\xB2\xE2\xA6\xB3\xE2\xA6\xB4\xE2\xA6\xB5\xE2\xA6\xB6\xE2\xA6\xB7\xE2\xA6\xB9"
    "\xE2\xA6\xBB\xE2\xA6\xBC\xE2\xA6\xBE\xE2\xA6\xBF\xE2\xA7\x80\xE2\xA7\x81\xE2\xA7\x82\xE2\xA7\x83"
    "\xE2\xA7\x84\xE2\xA7\x85\xE2\xA7\x89\xE2\xA7\x8D\xE2\xA7\x8E\xE2\xA7\x8F\xE2\xA7\x90\xE2\xA7\x9C"
    "\xE2\xA7\x9D\xE2\xA7\x9E\xE2\xA7\xA3\xE2\xA7\xA4\xE2\xA7\xA5\xE2\xA7\xAB\xE2\xA7\xB4\xE2\xA7\xB6"
    "\xE2\xA8\x80\xE2\xA8\x81\xE2\xA8\x82\xE2\xA8\x84\xE2\xA8\x86\xE2\xA8\x8C\xE2\xA8\x8D\xE2\xA8\x90"
    "\xE2\xA8\x91\xE2\xA8\x92\xE2\xA8\x93\xE2\xA8\x94\xE2\xA8\x95\xE2\xA8\x96\xE2\xA8\x97\xE2\xA8\xA2"
    "\xE2\xA8\xA3\xE2\xA8\xA4\xE2\xA8\xA5\xE2\xA8\xA6\xE2\xA8\xA7\xE2\xA8\xA9\xE2\xA8\xAA\xE2\xA8\xAD"
    "\xE2\xA8\xAE\xE2\xA8\xAF\xE2\xA8\xB0\xE2\xA8\xB1\xE2\xA8\xB3\xE2\xA8\xB4\xE2\xA8\xB5\xE2\xA8\xB6"
    "\xE2\xA8\xB7\xE2\xA8\xB8\xE2\xA8\xB9\xE2\xA8\xBA\xE2\xA8\xBB\xE2\xA8\xBC\xE2\xA8\xBF\xE2\xA9\x80"
    "\xE2\xA9\x82\xE2\xA9\x83\xE2\xA9\x84\xE2\xA9\x85\xE2\xA9\x86\xE2\xA9\x87\xE2\xA9\x88\xE2\xA9\x89"
    "\xE2\xA9\x8A\xE2\xA9\x8B\xE2\xA9\x8C\xE2\xA9\x8D\xE2\xA9\x90\xE2\xA9\x93\xE2\xA9\x94\xE2\xA9\x95"
    "\xE2\xA9\x96\xE2\xA9\x97\xE2\xA9\x98\xE2\xA9\x9A\xE2\xA9\x9B\xE2\xA9\x9C\xE2\xA9\x9D\xE2\xA9\x9F"
    "\xE2\xA9\xA6\xE2\xA9\xAA\xE2\xA9\xAD\xE2\xA9\xAE\xE2\xA9\xAF\xE2\xA9\xB0\xE2\xA9\xB1\xE2\xA9\xB2"
    "\xE2\xA9\xB3\xE2\xA9\xB4\xE2\xA9\xB5\xE2\xA9\xB7\xE2\xA9\xB8\xE2\xA9\xB9\xE2\xA9\xBA\xE2\xA9\xBB"
    "\xE2\xA9\xBC\xE2\xA9\xBD\xE2\xA9\xBE\xE2\xA9\xBF\xE2\xAA\x80\xE2\xAA\x81\xE2\xAA\x82\xE2\xAA\x83"
    "\xE2\xAA\x84\xE2\xAA\x85\xE2\xAA\x86\xE2\xAA\x87\xE2\xAA\x88\xE2\xAA\x89\xE2\xAA\x8A\xE2\xAA\x8B"
    "\xE2\xAA\x8C\xE2\xAA\x8D\xE2\xAA\x8E\xE2\xAA\x8F\xE2\xAA\x90\xE2\xAA\x91\xE2\xAA\x92\xE2\xAA\x93"
    "\xE2\xAA\x94\xE2\xAA\x95\xE2\xAA\x96\xE2\xAA\x97\xE2\xAA\x98\xE2\xAA\x99\xE2\xAA\x9A\xE2\xAA\x9D"
    "\xE2\xAA\x9E\xE2\xAA\x9F\xE2\xAA\xA0\xE2\xAA\xA1\xE2\xAA\xA2\xE2\xAA\xA4\xE2\xAA\xA5\xE2\xAA\xA6"
    "\xE2\xAA\xA7\xE2\xAA\xA8\xE2\xAA\xA9\xE2\xAA\xAA\xE2\xAA\xAB\xE2\xAA\xAC\xE2\xAA\xAD\xE2\xAA\xAE"
    "\xE2\xAA\xAF\xE2\xAA\xB0\xE2\xAA\xB3\xE2\xAA\xB4\xE2\xAA\xB5\xE2\xAA\xB6\xE2\xAA\xB7\xE2\xAA\xB8"
    "\xE2\xAA\xB9\xE2\xAA\xBA\xE2\xAA\xBB\xE2\xAA\xBC\xE2\xAA\xBD\xE2\xAA\xBE\xE2\xAA\xBF\xE2\xAB\x80"
    "\xE2\xAB\x81\xE2\xAB\x82\xE2\xAB\x83\xE2\xAB\x84\xE2\xAB\x85\xE2\xAB\x86\xE2\xAB\x87\xE2\xAB\x88"
    "\xE2\xAB\x8B\xE2\xAB\x8C\xE2\xAB\x8F\xE2\xAB\x90\xE2\xAB\x91\xE2\xAB\x92\xE2\xAB\x93\xE2\xAB\x94"
    "\xE2\xAB\x95\xE2\xAB\x96\xE2\xAB\x97\xE2\xAB\x98\xE2\xAB\x99\xE2\xAB\x9A\xE2\xAB\x9B\xE2\xAB\xA4"
    "\xE2\xAB\xA6\xE2\xAB\xA7\xE2\xAB\xA8\xE2\xAB\xA9\xE2\xAB\xAB\xE2\xAB\xAC\xE2\xAB\xAD\xE2\xAB\xAE"
    "\xE2\xAB\xAF\xE2\xAB\xB0\xE2\xAB\xB1\xE2\xAB\xB2\xE2\xAB\xB3\xE2\xAB\xBD\xEF\xAC\x80\xEF\xAC\x81"
    "\xEF\xAC\x82\xEF\xAC\x83\xEF\xAC\x84\xF0\x9D\x92\x9C\xF0\x9D\x92\x9E\xF0\x9D\x92\x9F\xF0\x9D\x92\xA2\xF0\x9D\x92\xA5"
    "\xF0\x9D\x92\xA6\xF0\x9D\x92\xA9\xF0\x9D\x92\xAA\xF0\x9D\x92\xAB\xF0\x9D\x92\xAC\xF0\x9D\x92\xAE\xF0\x9D\x92\xAF\xF0\x9D\x92\xB0"
    "\xF0\x9D\x92\xB1\xF0\x9D\x92\xB2\xF0\x9D\x92\xB3\xF0\x9D\x92\xB4\xF0\x9D\x92\xB5\xF0\x9D\x92\xB6\xF0\x9D\x92\xB7\xF0\x9D\x92\xB8"
    "\xF0\x9D\x92\xB9\xF0\x9D\x92\xBB\xF0\x9D\x92\xBD\xF0\x9D\x92\xBE\xF0\x9D\x92\xBF\xF0\x9D\x93\x80\xF0\x9D\x93\x81\xF0\x9D\x93\x82"
    "\xF0\x9D\x93\x83\xF0\x9D\x93\x85\xF0\x9D\x93\x86\xF0\x9D\x93\x87\xF0\x9D\x93\x88\xF0\x9D\x93\x89\xF0\x9D\x93\x8A\xF0\x9D\x93\x8B"
    "\xF0\x9D\x93\x8C\xF0\x9D\x93\x8D\xF0\x9D\x93\x8E\xF0\x9D\x93\x8F\xF0\x9D\x94\x84\xF0\x9D\x94\x85\xF0\x9D\x94\x87\xF0\x9D\x94\x88"
    "\xF0\x9D\x94\x89\xF0\x9D\x94\x8A\xF0\x9D\x94\x8D\xF0\x9D\x94\x8E\xF0\x9D\x94\x8F\xF0\x9D\x94\x90\xF0\x9D\x94\x91\xF0\x9D\x94\x92"
    "\xF0\x9D\x94\x93\xF0\x9D\x94\x94\xF0\x9D\x94\x96\xF0\x9D\x94\x97\xF0\x9D\x94\x98\xF0\x9D\x94\x99\xF0\x9D\x94\x9A\xF0\x9D\x94\x9B"
    "\xF0\x9D\x94\x9C\xF0\x9D\x94\x9E\xF0\x9D\x94\x9F\xF0\x9D\x94\xA0\xF0\x9D\x94\xA1\xF0\x9D\x94\xA2\xF0\x9D\x94\xA3\xF0\x9D\x94\xA4"
    "\xF0\x9D\x94\xA5\xF0\x9D\x94\xA6\xF0\x9D\x94\xA7\xF0\x9D\x94\xA8\xF0\x9D\x94\xA9\xF0\x9D\x94\xAA\xF0\x9D\x94\xAB\xF0\x9D\x94\xAC"
    "\xF0\x9D\x94\xAD\xF0\x9D\x94\xAE\xF0\x9D\x94\xAF\xF0\x9D\x94\xB0\xF0\x9D\x94\xB1\xF0\x9D\x94\xB2\xF0\x9D\x94\xB3\xF0\x9D\x94\xB4"
    "\xF0\x9D\x94\xB5\xF0\x9D\x94\xB6\xF0\x9D\x94\xB7\xF0\x9D\x94\xB8\xF0\x9D\x94\xB9\xF0\x9D\x94\xBB\xF0\x9D\x94\xBC\xF0\x9D\x94\xBD"
    "\xF0\x9D\x94\xBE\xF0\x9D\x95\x80\xF0\x9D\x95\x81\xF0\x9D\x95\x82\xF0\x9D\x95\x83\xF0\x9D\x95\x84\xF0\x9D\x95\x86\xF0\x9D\x95\x8A"
    "\xF0\x9D\x95\x8B\xF0\x9D\x95\x8C\xF0\x9D\x95\x8D\xF0\x9D\x95\x8E\xF0\x9D\x95\x8F\xF0\x9D\x95\x90\xF0\x9D\x95\x92\xF0\x9D\x95\x93"
    "\xF0\x9D\x95\x94\xF0\x9D\x95\x95\xF0\x9D\x95\x96\xF0\x9D\x95\x97\xF0\x9D\x95\x98\xF0\x9D\x95\x99\xF0\x9D\x95\x9A\xF0\x9D\x95\x9B"
    "\xF0\x9D\x95\x9C\xF0\x9D\x95\x9D\xF0\x9D\x95\x9E\xF0\x9D\x95\x9F\xF0\x9D\x95\xA0\xF0\x9D\x95\xA1\xF0\x9D\x95\xA2\xF0\x9D\x95\xA3"
    "\xF0\x9D\x95\xA4\xF0\x9D\x95\xA5\xF0\x9D\x95\xA6\xF0\x9D\x95\xA7\xF0\x9D\x95\xA8\xF0\x9D\x95\xA9\xF0\x9D\x95\xAA\xF0\x9D\x95\xAB";

const std::array<Entry, count> entries = {{
    {0, 5, 2, 455}, {5, 6, 2, 455}, {11, 3, 1, 354}, {14, 4, 1, 354}, {18, 6, 2, 445}, {24, 7, 2, 445},
    {31, 7, 2, 575}, {38, 5, 2, 447}, {43, 6, 2, 447}, {49, 4, 2, 983}, {53, 4, 4, 4006}, {57, 6, 2, 443},
    {63, 7, 2, 443}, {70, 6, 2, 837}, {76, 6, 2, 571}, {82, 4, 3, 3440}, {86, 6, 2, 579}, {92, 5, 4, 4194},
    {97, 14, 3, 1274}, {111, 5, 2, 453}, {116, 6, 2, 453}, {122, 5, 4, 3842}, {127, 7, 3, 1910}, {134, 6, 2, 449},
    {140, 7, 2, 449}, {147, 4, 2, 451}, {151, 5, 2, 451}, {156, 10, 3, 1736}, {166, 5, 3, 3788}, {171, 7, 3, 2381},
    {178, 4, 2, 985}, {182, 8, 3, 1820}, {190, 11, 3, 1373}, {201, 5, 2, 839}, {206, 4, 4, 4010}, {210, 5, 4, 4198},
    {215, 6, 2, 823}, {221, 5, 3, 1373}, {226, 7, 3, 80}, {233, 5, 2, 1029}, {238, 4, 2, 397}, {242, 5, 2, 397},
    {247, 7, 2, 583}, {254, 4, 3, 2258}, {258, 21, 3, 1406}, {279, 8, 3, 1376}, {287, 7, 2, 595}, {294, 6, 2, 457},
    {300, 7, 2, 457}, {307, 6, 2, 587}, {313, 8, 3, 1805}, {321, 5, 2, 591}, {326, 8, 2, 427}, {334, 10, 2, 425},
    {344, 4, 3, 1376}, {348, 4, 2, 879}, {352, 10, 3, 2099}, {362, 12, 3, 2090}, {374, 11, 3, 2087}, {385, 12, 3, 2093},
    {397, 25, 3, 1811}, {422, 22, 3, 1205}, {444, 16, 3, 1196}, {460, 6, 3, 1826}, {466, 7, 3, 3500}, {473, 10, 3, 95},
    {483, 7, 3, 1802}, {490, 16, 3, 1799}, {506, 5, 3, 1292}, {511, 10, 3, 1721}, {521, 32, 3, 1814}, {553, 6, 3, 3356},
    {559, 5, 4, 3846}, {564, 4, 3, 2261}, {568, 7, 3, 74}, {575, 3, 3, 1406}, {578, 9, 3, 2852}, {587, 5, 2, 957},
    {592, 5, 2, 963}, {597, 5, 2, 981}, {602, 7, 3, 1214}, {609, 5, 3, 1502}, {614, 6, 3, 3782}, {620, 7, 2, 599},
    {627, 4, 2, 991}, {631, 4, 3, 1703}, {635, 6, 2, 843}, {641, 4, 4, 4014}, {645, 17, 2, 419}, {662, 15, 2, 825},
    {677, 23, 2, 833}, {700, 17, 1, 375}, {717, 17, 2, 831}, {734, 8, 3, 2216}, {742, 14, 3, 1409}, {756, 5, 4, 4202},
    {761, 4, 2, 395}, {765, 7, 3, 1289}, {772, 9, 3, 90}, {781, 22, 3, 1802}, {803, 10, 2, 395}, {813, 16, 3, 1637},
    {829, 16, 3, 1628}, {845, 21, 3, 1640}, {866, 14, 3, 3782}, {880, 20, 3, 2810}, {900, 25, 3, 2816}, {925, 21, 3, 2813},
    {946, 17, 3, 1634}, {963, 15, 3, 2138}, {978, 14, 3, 1631}, {992, 18, 3, 1643}, {1010, 18, 3, 1772}, {1028, 10, 3, 1463},
    {1038, 13, 3, 2858}, {1051, 17, 3, 1673}, {1068, 10, 2, 835}, {1078, 20, 3, 2957}, {1098, 18, 3, 2999}, {1116, 15, 3, 1571},
    {1131, 18, 3, 2975}, {1149, 19, 3, 3002}, {1168, 16, 3, 1583}, {1184, 19, 3, 2978}, {1203, 8, 3, 2129}, {1211, 13, 3, 1520},
    {1224, 10, 3, 1637}, {1234, 5, 4, 3850}, {1239, 7, 2, 603}, {1246, 4, 2, 709}, {1250, 3, 2, 475}, {1253, 4, 2, 475},
    {1257, 6, 2, 461}, {1263, 7, 2, 461}, {1270, 7, 2, 619}, {1277, 5, 2, 463}, {1282, 6, 2, 463}, {1288, 4, 2, 1041},
    {1292, 5, 2, 611}, {1297, 4, 4, 4018}, {1301, 6, 2, 459}, {1307, 7, 2, 459}, {1314, 8, 3, 1706}, {1322, 6, 2, 607},
    {1328, 17, 3, 2705}, {1345, 21, 3, 2642}, {1366, 6, 2, 615}, {1372, 5, 4, 4206}, {1377, 8, 2, 845}, {1385, 6, 3, 3503},
    {1391, 11, 3, 64}, {1402, 12, 3, 1616}, {1414, 5, 3, 1382}, {1419, 5, 3, 3497}, {1424, 4, 2, 849}, {1428, 4, 2, 465},
    {1432, 5, 2, 465}, {1437, 7, 3, 1694}, {1444, 13, 3, 1412}, {1457, 4, 2, 1023}, {1461, 4, 4, 4022}, {1465, 18, 3, 2708},
    {1483, 22, 3, 2639}, {1505, 5, 4, 4210}, {1510, 7, 3, 1685}, {1517, 11, 3, 1385}, {1528, 5, 3, 1385}, {1533, 5, 2, 959},
    {1538, 2, 1, 8}, {1540, 3, 1, 8}, {1543, 6, 2, 841}, {1549, 7, 2, 943}, {1556, 7, 2, 627}, {1563, 7, 2, 635},
    {1570, 6, 2, 623}, {1576, 4, 2, 989}, {1580, 5, 2, 631}, {1585, 4, 4, 4026}, {1589, 3, 3, 225}, {1592, 5, 4, 4214},
    {1597, 13, 3, 107}, {1610, 17, 3, 236}, {1627, 17, 3, 118}, {1644, 15, 3, 292}, {1659, 12, 3, 2000}, {1671, 18, 3, 282},
    {1689, 13, 3, 1988}, {1702, 5, 4, 3854}, {1707, 3, 3, 146}, {1710, 7, 2, 1035}, {1717, 6, 2, 821}, {1723, 4, 1, 373},
    {1727, 6, 2, 637}, {1733, 4, 3, 1304}, {1737, 13, 3, 1301}, {1750, 5, 3, 1307}, {1755, 15, 3, 2498}, {1770, 5, 3, 1301},
    {1775, 7, 2, 641}, {1782, 13, 3, 80}, {1795, 10, 3, 85}, {1805, 5, 2, 993}, {1810, 6, 2, 661}, {1816, 5, 2, 955},
    {1821, 6, 2, 469}, {1827, 7, 2, 469}, {1834, 5, 2, 471}, {1839, 6, 2, 471}, {1845, 4, 2, 999}, {1849, 5, 2, 657},
    {1854, 4, 3, 1319}, {1858, 6, 2, 467}, {1864, 7, 2, 467}, {1871, 3, 3, 1319}, {1874, 6, 2, 649}, {1880, 11, 3, 1415},
    {1891, 8, 3, 1634}, {1899, 4, 3, 1793}, {1903, 9, 3, 1790}, {1912, 13, 3, 2210}, {1925, 15, 3, 1280}, {1940, 15, 3, 1277},
    {1955, 6, 2, 653}, {1961, 5, 4, 4218}, {1966, 5, 2, 853}, {1971, 5, 3, 1316}, {1976, 7, 2, 645}, {1983, 6, 2, 965},
    {1989, 4, 2, 473}, {1993, 5, 2, 473}, {1998, 6, 2, 665}, {2004, 4, 2, 1001}, {2008, 4, 4, 4030}, {2012, 5, 4, 4222},
    {2017, 5, 4, 3858}, {2022, 7, 2, 969}, {2029, 6, 2, 961}, {2035, 5, 2, 1025}, {2040, 5, 2, 977}, {2045, 6, 2, 855},
    {2051, 7, 2, 669}, {2058, 4, 2, 1003}, {2062, 4, 4, 4034}, {2066, 5, 4, 4226}, {2071, 5, 4, 3862}, {2076, 5, 2, 971},
    {2081, 2, 1, 0}, {2083, 3, 1, 0}, {2086, 7, 2, 675}, {2093, 7, 2, 857}, {2100, 5, 3, 2789}, {2105, 11, 3, 1322},
    {2116, 5, 3, 1493}, {2121, 7, 2, 683}, {2128, 7, 2, 679}, {2135, 4, 2, 1005}, {2139, 17, 3, 2783}, {2156, 10, 3, 1454},
    {2166, 13, 3, 1667}, {2179, 20, 3, 1598}, {2199, 12, 3, 2384}, {2211, 18, 3, 2777}, {2229, 18, 3, 3008}, {2247, 15, 3, 1589},
    {2262, 18, 3, 2984}, {2280, 10, 3, 2390}, {2290, 15, 3, 1466}, {2305, 16, 3, 2951}, {2321, 8, 3, 2126}, {2329, 13, 3, 1511},
    {2342, 14, 3, 2987}, {2356, 13, 3, 2165}, {2369, 16, 3, 257}, {2385, 18, 3, 208}, {2403, 17, 3, 2960}, {2420, 16, 3, 3005},
    {2436, 13, 3, 1577}, {2449, 16, 3, 2981}, {2465, 11, 3, 1568}, {2476, 14, 3, 2963}, {2490, 10, 3, 1628}, {2500, 15, 3, 1640},
    {2515, 17, 3, 230}, {2532, 14, 3, 113}, {2546, 12, 3, 1997}, {2558, 9, 3, 287}, {2567, 15, 3, 277}, {2582, 10, 3, 1985},
    {2592, 4, 4, 4038}, {2596, 3, 3, 220}, {2599, 11, 3, 1658}, {2610, 7, 2, 687}, {2617, 14, 3, 2801}, {2631, 19, 3, 2807},
    {2650, 15, 3, 2804}, {2665, 14, 3, 2810}, {2679, 19, 3, 2816}, {2698, 15, 3, 2813}, {2713, 5, 4, 4230}, {2718, 15, 3, 1481},
    {2733, 16, 3, 1478}, {2749, 5, 3, 1322}, {2754, 4, 3, 1541}, {2758, 7, 2, 691}, {2765, 3, 3, 135}, {2768, 4, 3, 2834},
    {2772, 4, 2, 1007}, {2776, 12, 3, 14}, {2788, 10, 3, 1388}, {2798, 4, 4, 4042}, {2802, 10, 3, 1730}, {2812, 5, 4, 4234},
    {2817, 5, 3, 1388}, {2822, 3, 2, 859}, {2825, 5, 2, 973}, {2830, 7, 2, 695}, {2837, 7, 2, 703}, {2844, 7, 2, 699},
    {2851, 4, 2, 1009}, {2855, 20, 3, 1163}, {2875, 19, 3, 1163}, {2894, 18, 3, 1163}, {2912, 22, 3, 1163}, {2934, 21, 3, 146},
    {2955, 15, 3, 135}, {2970, 8, 1, 348}, {2978, 4, 4, 4046}, {2982, 8, 3, 1271}, {2990, 17, 2, 379}, {3007, 5, 3, 1328},
    {3012, 4, 3, 3800}, {3016, 13, 3, 1940}, {3029, 10, 3, 1970}, {3039, 21, 3, 1775}, {3060, 11, 3, 1709}, {3071, 9, 3, 1934},
    {3080, 14, 5, 64}, {3094, 10, 3, 1697}, {3104, 11, 3, 1976}, {3115, 16, 3, 1982}, {3131, 20, 5, 118}, {3151, 18, 5, 146},
    {3169, 15, 3, 2006}, {3184, 21, 5, 282}, {3205, 16, 3, 1994}, {3221, 16, 5, 80}, {3237, 13, 5, 85}, {3250, 16, 3, 2318},
    {3266, 19, 5, 257}, {3285, 21, 3, 2324}, {3306, 8, 3, 1973}, {3314, 13, 3, 1979}, {3327, 15, 3, 2003}, {3342, 12, 5, 135},
    {3354, 18, 5, 277}, {3372, 13, 3, 1991}, {3385, 24, 5, 292}, {3409, 18, 5, 287}, {3427, 12, 3, 2027}, {3439, 17, 5, 309},
    {3456, 22, 3, 2294}, {3478, 18, 3, 1715}, {3496, 17, 3, 2321}, {3513, 20, 5, 262}, {3533, 22, 3, 2327}, {3555, 16, 5, 186},
    {3571, 21, 3, 2300}, {3592, 18, 5, 191}, {3610, 23, 3, 2303}, {3633, 10, 6, 162}, {3643, 15, 3, 2051}, {3658, 12, 3, 2030},
    {3670, 17, 5, 314}, {3687, 22, 3, 2297}, {3709, 17, 5, 157}, {3726, 12, 6, 168}, {3738, 17, 3, 2054}, {3755, 9, 3, 1853},
    {3764, 14, 3, 1862}, {3778, 18, 3, 1871}, {3796, 14, 3, 1877}, {3810, 15, 3, 1769}, {3825, 5, 4, 3866}, {3830, 6, 2, 477},
    {3836, 7, 2, 477}, {3843, 3, 2, 861}, {3846, 6, 2, 721}, {3852, 6, 2, 481}, {3858, 7, 2, 481}, {3865, 5, 2, 483},
    {3870, 6, 2, 483}, {3876, 4, 2, 1011}, {3880, 7, 2, 717}, {3887, 4, 4, 4050}, {3891, 6, 2, 479}, {3897, 7, 2, 479},
    {3904, 6, 2, 713}, {3910, 6, 2, 883}, {3916, 8, 2, 865}, {3924, 5, 4, 4238}, {3929, 21, 3, 1202}, {3950, 15, 3, 1193},
    {3965, 3, 3, 3443}, {3968, 5, 4, 3870}, {3973, 6, 2, 491}, {3979, 7, 2, 491}, {3986, 6, 2, 485}, {3992, 7, 2, 485},
    {3999, 7, 3, 3377}, {4006, 4, 2, 487}, {4010, 5, 2, 487}, {4015, 8, 3, 1250}, {4023, 10, 3, 2480}, {4033, 12, 3, 2465},
    {4045, 16, 3, 2474}, {4061, 9, 3, 25}, {4070, 4, 2, 1013}, {4074, 4, 4, 4054}, {4078, 4, 2, 877}, {4082, 3, 2, 867},
    {4085, 10, 2, 413}, {4095, 14, 3, 1304}, {4109, 5, 3, 1340}, {4114, 3, 3, 3695}, {4117, 9, 3, 2009}, {4126, 14, 3, 309},
    {4140, 19, 3, 2015}, {4159, 14, 3, 2021}, {4173, 6, 3, 1235}, {4179, 8, 3, 1718}, {4187, 11, 3, 1826}, {4198, 13, 3, 1748},
    {4211, 5, 4, 3874}, {4216, 4, 2, 881}, {4220, 4, 1, 350}, {4224, 5, 1, 350}, {4229, 4, 4, 4058}, {4233, 5, 3, 1343},
    {4238, 5, 4, 3878}, {4243, 6, 3, 2849}, {4249, 3, 2, 407}, {4252, 4, 2, 407}, {4256, 7, 2, 725}, {4263, 5, 3, 2792},
    {4268, 5, 3, 1499}, {4273, 7, 3, 2861}, {4280, 7, 2, 733}, {4287, 7, 2, 729}, {4294, 4, 2, 1015}, {4298, 3, 3, 1349},
    {4301, 15, 3, 1712}, {4316, 19, 3, 1613}, {4335, 21, 3, 3050}, {4356, 4, 3, 1349}, {4360, 4, 2, 869}, {4364, 18, 3, 2786},
    {4382, 11, 3, 1460}, {4393, 14, 3, 1670}, {4407, 20, 3, 1592}, {4427, 13, 3, 2387}, {4440, 19, 3, 2780}, {4459, 19, 3, 2996},
    {4478, 16, 3, 1586}, {4494, 19, 3, 2972}, {4513, 11, 3, 2393}, {4524, 9, 3, 2123}, {4533, 14, 3, 1517}, {4547, 15, 3, 2990},
    {4562, 14, 3, 2168}, {4576, 17, 3, 262}, {4593, 19, 3, 214}, {4612, 18, 3, 2954}, {4630, 17, 3, 2993}, {4647, 14, 3, 1574},
    {4661, 17, 3, 2969}, {4678, 12, 3, 1580}, {4690, 15, 3, 2966}, {4705, 11, 3, 1634}, {4716, 5, 3, 1352}, {4721, 13, 3, 3053},
    {4734, 12, 3, 1661}, {4746, 5, 3, 1346}, {4751, 4, 3, 1544}, {4755, 12, 3, 3275}, {4767, 7, 2, 1033}, {4774, 5, 2, 1031},
    {4779, 7, 2, 1039}, {4786, 7, 2, 737}, {4793, 3, 3, 3698}, {4796, 7, 2, 749}, {4803, 7, 2, 745}, {4810, 6, 2, 741},
    {4816, 4, 2, 1017}, {4820, 4, 4, 4062}, {4824, 15, 3, 1463}, {4839, 15, 3, 1454}, {4854, 16, 3, 1460}, {4870, 13, 3, 1457},
    {4883, 6, 2, 871}, {4889, 12, 3, 1742}, {4901, 5, 4, 4242}, {4906, 5, 3, 1745}, {4911, 7, 3, 2636}, {4918, 19, 3, 196},
    {4937, 13, 3, 186}, {4950, 18, 3, 2075}, {4968, 15, 3, 191}, {4983, 20, 3, 2078}, {5003, 12, 3, 202}, {5015, 5, 4, 3882},
    {5020, 5, 3, 2222}, {5025, 4, 3, 2252}, {5029, 7, 3, 2252}, {5036, 12, 3, 2045}, {5048, 9, 3, 2012}, {5057, 14, 3, 314},
    {5071, 19, 3, 2018}, {5090, 14, 3, 157}, {5104, 9, 3, 1712}, {5113, 4, 3, 1724}, {5117, 4, 3, 2255}, {5121, 9, 3, 168},
    {5130, 14, 3, 2048}, {5144, 7, 3, 2255}, {5151, 5, 2, 503}, {5156, 6, 2, 503}, {5162, 6, 3, 1358}, {5168, 6, 2, 975},
    {5174, 5, 2, 1027}, {5179, 4, 1, 347}, {5183, 4, 2, 873}, {5187, 7, 2, 757}, {5194, 7, 2, 753}, {5201, 4, 2, 1019},
    {5205, 4, 4, 4066}, {5209, 10, 3, 1817}, {5219, 6, 2, 851}, {5225, 11, 6, 14}, {5236, 10, 3, 1157}, {5246, 6, 3, 48},
    {5252, 11, 3, 1859}, {5263, 15, 3, 1865}, {5278, 11, 3, 1874}, {5289, 5, 4, 4246}, {5294, 10, 3, 1286}, {5304, 5, 4, 3886},
    {5309, 7, 2, 761}, {5316, 6, 2, 495}, {5322, 7, 2, 495}, {5329, 5, 3, 1496}, {5334, 9, 3, 2942}, {5343, 6, 2, 979},
    {5349, 7, 2, 773}, {5356, 5, 2, 497}, {5361, 6, 2, 497}, {5367, 4, 2, 1021}, {5371, 7, 2, 781}, {5378, 4, 4, 4070},
    {5382, 6, 2, 493}, {5388, 7, 2, 493}, {5395, 6, 2, 769}, {5401, 9, 1, 374}, {5410, 11, 3, 2483}, {5421, 13, 3, 2468},
    {5434, 17, 3, 2477}, {5451, 6, 3, 2213}, {5457, 10, 3, 2066}, {5467, 6, 2, 785}, {5473, 5, 4, 4250}, {5478, 8, 3, 1457},
    {5486, 11, 3, 2855}, {5497, 17, 3, 1595}, {5514, 12, 3, 1469}, {5526, 14, 3, 3047}, {5540, 6, 3, 2132}, {5546, 11, 3, 1514},
    {5557, 8, 3, 1631}, {5565, 12, 3, 1643}, {5577, 15, 3, 1472}, {5592, 16, 3, 1475}, {5608, 5, 2, 937}, {5613, 8, 2, 875},
    {5621, 6, 2, 777}, {5627, 5, 4, 3890}, {5632, 7, 2, 765}, {5639, 4, 2, 499}, {5643, 5, 2, 499}, {5648, 6, 3, 2147},
    {5654, 5, 3, 3797}, {5659, 4, 2, 987}, {5663, 6, 3, 2141}, {5669, 7, 3, 3785}, {5676, 4, 3, 2207}, {5680, 7, 3, 1190},
    {5687, 5, 3, 1190}, {5692, 12, 3, 1766}, {5704, 13, 1, 377}, {5717, 18, 3, 2762}, {5735, 14, 3, 1850}, {5749, 14, 3, 17},
    {5763, 4, 4, 4074}, {5767, 5, 4, 4254}, {5772, 5, 4, 3894}, {5777, 7, 3, 2144}, {5784, 6, 2, 789}, {5790, 6, 3, 2204},
    {5796, 4, 4, 4078}, {5800, 5, 4, 4258}, {5805, 5, 4, 3898}, {5810, 4, 4, 4082}, {5814, 3, 2, 863}, {5817, 5, 4, 4262},
    {5822, 5, 4, 3902}, {5827, 5, 2, 1045}, {5832, 5, 2, 967}, {5837, 5, 2, 1043}, {5842, 6, 2, 501}, {5848, 7, 2, 501},
    {5855, 6, 2, 793}, {5861, 4, 2, 1037}, {5865, 4, 4, 4086}, {5869, 5, 4, 4266}, {5874, 5, 4, 3906}, {5879, 5, 2, 797},
    {5884, 5, 2, 995}, {5889, 7, 2, 799}, {5896, 7, 2, 807}, {5903, 4, 2, 997}, {5907, 5, 2, 803}, {5912, 15, 3, 1163},
    {5927, 5, 2, 847}, {5932, 4, 3, 1367}, {5936, 5, 3, 1361}, {5941, 5, 4, 3910}, {5946, 6, 2, 509}, {5952, 7, 2, 509},
    {5959, 7, 2, 577}, {5966, 3, 3, 59}, {5969, 4, 5, 59}, {5973, 4, 3, 1847}, {5977, 5, 2, 511}, {5982, 6, 2, 511},
    {5988, 5, 2, 419}, {5993, 6, 2, 419}, {5999, 4, 2, 1047}, {6003, 5, 2, 519}, {6008, 6, 2, 519}, {6014, 3, 3, 1274},
    {6017, 4, 4, 4090}, {6021, 6, 2, 507}, {6027, 7, 2, 507}, {6034, 8, 3, 1394}, {6042, 6, 3, 1394}, {6048, 6, 2, 885},
    {6054, 6, 2, 573}, {6060, 6, 3, 3395}, {6066, 3, 1, 354}, {6069, 4, 1, 354}, {6073, 4, 3, 1778}, {6077, 7, 3, 3446},
    {6084, 5, 3, 3464}, {6089, 9, 3, 3455}, {6098, 5, 3, 3458}, {6103, 4, 3, 30}, {6107, 5, 3, 3146}, {6112, 6, 3, 30},
    {6118, 7, 3, 1760}, {6125, 9, 3, 3158}, {6134, 9, 3, 3161}, {6143, 9, 3, 3164}, {6152, 9, 3, 3167}, {6161, 9, 3, 3170},
    {6170, 9, 3, 3173}, {6179, 9, 3, 3176}, {6188, 9, 3, 3179}, {6197, 6, 3, 1754}, {6203, 8, 3, 2198}, {6211, 9, 3, 3143},
    {6220, 7, 3, 1763}, {6227, 6, 2, 453}, {6233, 8, 3, 2456}, {6241, 6, 2, 581}, {6247, 5, 4, 4270}, {6252, 3, 3, 1874},
    {6255, 4, 3, 272}, {6259, 7, 3, 3485}, {6266, 4, 3, 1880}, {6270, 5, 3, 69}, {6275, 5, 1, 355}, {6280, 7, 3, 1874},
    {6287, 9, 3, 1880}, {6296, 5, 2, 517}, {6301, 6, 2, 517}, {6307, 5, 4, 3914}, {6312, 4, 1, 358}, {6316, 6, 3, 1874},
    {6322, 8, 3, 74}, {6330, 6, 2, 513}, {6336, 7, 2, 513}, {6343, 4, 2, 515}, {6347, 5, 2, 515}, {6352, 9, 3, 1814},
    {6361, 6, 3, 3305}, {6367, 5, 3, 3803}, {6372, 9, 3, 1886}, {6381, 12, 2, 953}, {6393, 10, 3, 1241}, {6403, 8, 3, 54},
    {6411, 10, 3, 2243}, {6421, 7, 3, 2195}, {6428, 7, 3, 2378}, {6435, 9, 3, 2378}, {6444, 5, 3, 2468}, {6449, 9, 3, 2471},
    {6458, 6, 3, 1886}, {6464, 4, 2, 1049}, {6468, 6, 3, 1208}, {6474, 7, 3, 1820}, {6481, 8, 3, 1820}, {6489, 8, 3, 3182},
    {6497, 6, 2, 953}, {6503, 7, 3, 1373}, {6510, 5, 2, 887}, {6515, 5, 3, 1397}, {6520, 8, 3, 1967}, {6528, 4, 4, 4094},
    {6532, 7, 3, 2210}, {6539, 8, 3, 2693}, {6547, 7, 3, 2213}, {6554, 8, 3, 3281}, {6562, 9, 3, 3284}, {6571, 10, 3, 3287},
    {6581, 9, 3, 3293}, {6590, 8, 3, 2711}, {6598, 16, 3, 2669}, {6614, 14, 3, 2654}, {6628, 9, 3, 3290}, {6637, 7, 3, 2207},
    {6644, 9, 3, 2204}, {6653, 7, 3, 2840}, {6660, 13, 3, 3272}, {6673, 12, 3, 2639}, {6685, 14, 3, 2657}, {6699, 18, 3, 2672},
    {6717, 18, 3, 2678}, {6735, 19, 3, 2663}, {6754, 6, 3, 2492}, {6760, 6, 3, 2630}, {6766, 6, 3, 2627}, {6772, 6, 3, 2633},
    {6778, 6, 3, 2624}, {6784, 4, 4, 4}, {6788, 8, 6, 95}, {6796, 5, 3, 2408}, {6801, 5, 4, 4274}, {6806, 4, 3, 2132},
    {6810, 7, 3, 2132}, {6817, 7, 3, 2228}, {6824, 6, 3, 2552}, {6830, 6, 3, 2543}, {6836, 6, 3, 2549}, {6842, 6, 3, 2540},
    {6848, 5, 3, 2531}, {6853, 6, 3, 2597}, {6859, 6, 3, 2606}, {6865, 6, 3, 2591}, {6871, 6, 3, 2600}, {6877, 6, 3, 2570},
    {6883, 6, 3, 2561}, {6889, 6, 3, 2567}, {6895, 6, 3, 2558}, {6901, 5, 3, 2534}, {6906, 6, 3, 2615}, {6912, 6, 3, 2588},
    {6918, 6, 3, 2579}, {6924, 6, 3, 2612}, {6930, 6, 3, 2585}, {6936, 6, 3, 2576}, {6942, 7, 3, 3239}, {6949, 6, 3, 2546},
    {6955, 6, 3, 2537}, {6961, 6, 3, 2507}, {6967, 6, 3, 2504}, {6973, 5, 3, 2498}, {6978, 6, 3, 2594}, {6984, 6, 3, 2603},
    {6990, 6, 3, 2522}, {6996, 6, 3, 2525}, {7002, 9, 3, 2114}, {7011, 8, 3, 2111}, {7019, 9, 3, 2117}, {7028, 6, 3, 2564},
    {7034, 6, 3, 2555}, {7040, 6, 3, 2513}, {7046, 6, 3, 2510}, {7052, 5, 3, 2501}, {7057, 6, 3, 2609}, {7063, 6, 3, 2582},
    {7069, 6, 3, 2573}, {7075, 6, 3, 2528}, {7081, 6, 3, 2519}, {7087, 6, 3, 2516}, {7093, 7, 3, 1241}, {7100, 6, 2, 823},
    {7106, 6, 2, 391}, {7112, 7, 2, 391}, {7119, 5, 4, 3918}, {7124, 6, 3, 1262}, {7130, 5, 3, 54}, {7135, 6, 3, 2243},
    {7141, 5, 1, 371}, {7146, 6, 3, 3236}, {7152, 9, 3, 2771}, {7161, 5, 3, 1217}, {7166, 7, 3, 1217}, {7173, 5, 3, 80},
    {7178, 6, 3, 3662}, {7184, 6, 3, 85}, {7190, 7, 3, 85}, {7197, 7, 2, 585}, {7204, 4, 3, 36}, {7208, 7, 3, 3407},
    {7215, 9, 3, 3422}, {7224, 7, 3, 3428}, {7231, 7, 3, 3416}, {7238, 7, 3, 3398}, {7245, 5, 6, 36}, {7250, 6, 3, 1253},
    {7256, 6, 2, 821}, {7262, 6, 3, 3434}, {7268, 7, 2, 597}, {7275, 6, 2, 521}, {7281, 7, 2, 521}, {7288, 6, 2, 589},
    {7294, 6, 3, 3431}, {7300, 8, 3, 3437}, {7308, 5, 2, 593}, {7313, 5, 2, 427}, {7318, 6, 2, 427}, {7324, 8, 3, 3188},
    {7332, 4, 2, 383}, {7336, 5, 2, 383}, {7341, 10, 2, 425}, {7351, 4, 4, 4098}, {7355, 5, 2, 1093}, {7360, 6, 3, 2750},
    {7366, 10, 3, 2750}, {7376, 4, 2, 929}, {7380, 4, 3, 2687}, {7384, 5, 3, 3230}, {7389, 5, 2, 819}, {7394, 7, 3, 1919},
    {7401, 16, 3, 1562}, {7417, 17, 3, 1565}, {7434, 9, 2, 407}, {7443, 9, 3, 2495}, {7452, 11, 3, 2105}, {7463, 12, 3, 2102},
    {7475, 12, 3, 2108}, {7487, 5, 3, 1919}, {7492, 9, 3, 3302}, {7501, 7, 3, 3809}, {7508, 8, 3, 3227}, {7516, 6, 3, 2729},
    {7522, 9, 3, 2729}, {7531, 6, 1, 363}, {7537, 7, 3, 1910}, {7544, 8, 3, 1910}, {7552, 6, 1, 360}, {7558, 7, 1, 369},
    {7565, 5, 3, 1688}, {7570, 7, 3, 1742}, {7577, 11, 3, 1688}, {7588, 10, 3, 1292}, {7598, 5, 3, 1865}, {7603, 8, 3, 267},
    {7611, 7, 3, 1799}, {7618, 5, 4, 4278}, {7623, 7, 3, 1721}, {7630, 4, 2, 397}, {7634, 5, 2, 397}, {7639, 7, 3, 1334},
    {7646, 6, 3, 1553}, {7652, 6, 3, 2753}, {7658, 5, 4, 3922}, {7663, 5, 3, 3743}, {7668, 6, 3, 3749}, {7674, 5, 3, 3746},
    {7679, 6, 3, 3752}, {7685, 6, 3, 2333}, {7691, 8, 3, 2924}, {7699, 8, 3, 2915}, {7707, 6, 3, 2288}, {7713, 6, 3, 2291},
    {7719, 7, 3, 1556}, {7726, 8, 3, 2933}, {7734, 4, 3, 42}, {7738, 9, 3, 3419}, {7747, 7, 3, 3413}, {7754, 7, 3, 3425},
    {7761, 7, 3, 2063}, {7768, 6, 3, 3410}, {7774, 5, 6, 42}, {7779, 7, 3, 1559}, {7786, 8, 3, 2930}, {7794, 12, 3, 2288},
    {7806, 12, 3, 2291}, {7818, 9, 3, 2246}, {7827, 11, 3, 2249}, {7838, 6, 2, 387}, {7844, 7, 2, 387}, {7851, 15, 3, 1556},
    {7866, 16, 3, 1559}, {7882, 6, 3, 2246}, {7888, 6, 3, 2249}, {7894, 9, 3, 1811}, {7903, 6, 3, 1808}, {7909, 7, 3, 2441},
    {7916, 5, 3, 1637}, {7921, 5, 3, 3020}, {7926, 7, 3, 1211}, {7933, 7, 3, 1403}, {7940, 5, 3, 1463}, {7945, 5, 3, 1178},
    {7950, 6, 3, 2126}, {7956, 8, 3, 2846}, {7964, 6, 2, 833}, {7970, 7, 2, 601}, {7977, 4, 2, 1055}, {7981, 3, 3, 1409},
    {7984, 8, 3, 1214}, {7992, 6, 3, 1610}, {7998, 8, 3, 3506}, {8006, 3, 2, 411}, {8009, 4, 2, 411}, {8013, 6, 2, 891},
    {8019, 8, 3, 3185}, {8027, 7, 3, 3092}, {8034, 4, 4, 4102}, {8038, 6, 3, 1589}, {8044, 6, 3, 1586}, {8050, 5, 3, 2216},
    {8055, 8, 3, 2216}, {8063, 12, 3, 2735}, {8075, 6, 3, 2735}, {8081, 4, 2, 395}, {8085, 8, 2, 945}, {8093, 6, 3, 2342},
    {8099, 4, 2, 553}, {8103, 6, 2, 553}, {8109, 7, 2, 553}, {8116, 14, 3, 2225}, {8130, 7, 3, 2225}, {8137, 5, 2, 1113},
    {8142, 7, 3, 2429}, {8149, 7, 3, 2399}, {8156, 7, 1, 352}, {8163, 5, 4, 4282}, {8168, 4, 2, 825}, {8172, 6, 3, 90},
    {8178, 9, 3, 1901}, {8187, 9, 3, 1829}, {8196, 8, 3, 1733}, {8204, 10, 3, 2120}, {8214, 15, 3, 2381}, {8229, 10, 3, 1463},
    {8239, 15, 3, 1610}, {8254, 16, 3, 1589}, {8270, 17, 3, 1586}, {8287, 9, 3, 2849}, {8296, 7, 3, 2432}, {8303, 7, 3, 2396},
    {8310, 5, 4, 3926}, {8315, 5, 2, 1119}, {8320, 5, 3, 3278}, {8325, 7, 2, 605}, {8332, 6, 3, 2339}, {8338, 5, 3, 2675},
    {8343, 6, 3, 2672}, {8349, 6, 3, 1673}, {8355, 6, 3, 3050}, {8361, 8, 3, 3152}, {8369, 5, 2, 1137}, {8374, 9, 3, 2822},
    {8383, 6, 3, 3506}, {8389, 5, 3, 1901}, {8394, 6, 2, 525}, {8400, 7, 2, 525}, {8407, 7, 3, 3482}, {8414, 7, 2, 621},
    {8421, 5, 3, 1916}, {8426, 5, 2, 527}, {8431, 6, 2, 527}, {8437, 7, 3, 1913}, {8444, 4, 2, 1105}, {8448, 5, 2, 613},
    {8453, 3, 3, 1412}, {8456, 6, 3, 1904}, {8462, 4, 4, 4106}, {8466, 3, 3, 3611}, {8469, 6, 2, 523}, {8475, 7, 2, 523},
    {8482, 4, 3, 3599}, {8486, 7, 3, 3605}, {8493, 3, 3, 3608}, {8496, 9, 3, 2489}, {8505, 4, 3, 1325}, {8509, 4, 3, 3596},
    {8513, 7, 3, 3602}, {8520, 6, 2, 609}, {8526, 6, 3, 1700}, {8532, 9, 3, 1700}, {8541, 7, 3, 1700}, {8548, 7, 3, 1145},
    {8555, 7, 3, 1148}, {8562, 5, 3, 1142}, {8567, 4, 2, 711}, {8571, 5, 3, 1139}, {8576, 6, 2, 617}, {8582, 5, 4, 4286},
    {8587, 5, 3, 2267}, {8592, 7, 3, 3263}, {8599, 6, 3, 3491}, {8605, 5, 2, 893}, {8610, 8, 2, 893}, {8618, 6, 2, 951},
    {8624, 7, 3, 1916}, {8631, 8, 3, 1913}, {8639, 6, 3, 64}, {8645, 11, 3, 3599}, {8656, 12, 3, 3596}, {8668, 7, 1, 4},
    {8675, 7, 3, 1931}, {8682, 6, 3, 95}, {8688, 8, 3, 3509}, {8696, 9, 3, 3269}, {8705, 6, 3, 1907}, {8711, 6, 3, 3056},
    {8717, 5, 3, 1379}, {8722, 6, 3, 90}, {8728, 5, 3, 64}, {8733, 4, 2, 897}, {8737, 3, 2, 539}, {8740, 4, 2, 539},
    {8744, 4, 2, 529}, {8748, 5, 2, 529}, {8753, 5, 3, 1283}, {8758, 5, 1, 349}, {8763, 6, 3, 1694}, {8769, 12, 3, 1382},
    {8781, 13, 3, 1412}, {8794, 14, 3, 1904}, {8808, 4, 2, 1087}, {8812, 7, 3, 2720}, {8819, 7, 3, 3836}, {8826, 6, 3, 3827},
    {8832, 7, 3, 3839}, {8839, 4, 4, 4110}, {8843, 6, 3, 3830}, {8849, 6, 2, 12}, {8855, 5, 3, 2741}, {8860, 6, 3, 3833},
    {8866, 6, 3, 2651}, {8872, 5, 2, 811}, {8877, 5, 4, 4290}, {8882, 7, 3, 1685}, {8889, 5, 3, 2264}, {8894, 6, 3, 3773},
    {8900, 9, 3, 3299}, {8909, 6, 2, 437}, {8915, 7, 2, 437}, {8922, 7, 3, 1418}, {8929, 6, 2, 435}, {8935, 7, 2, 435},
    {8942, 7, 3, 1424}, {8949, 7, 3, 1436}, {8956, 7, 3, 1442}, {8963, 7, 3, 1421}, {8970, 7, 3, 1427}, {8977, 6, 2, 439},
    {8983, 7, 2, 439}, {8990, 7, 3, 1430}, {8997, 7, 3, 1445}, {9004, 7, 3, 1433}, {9011, 7, 3, 1439}, {9018, 7, 3, 1448},
    {9025, 7, 3, 1451}, {9032, 6, 3, 1259}, {9038, 6, 3, 2435}, {9044, 5, 4, 3930}, {9049, 3, 3, 118}, {9052, 4, 3, 3569},
    {9056, 7, 2, 815}, {9063, 6, 2, 889}, {9069, 7, 2, 945}, {9076, 4, 3, 3551}, {9080, 7, 2, 629}, {9087, 6, 2, 625},
    {9093, 4, 2, 1053}, {9097, 5, 2, 633}, {9102, 3, 3, 107}, {9105, 4, 3, 236}, {9109, 4, 3, 107}, {9113, 5, 3, 118},
    {9118, 9, 3, 282}, {9127, 4, 3, 282}, {9131, 6, 3, 3647}, {9137, 7, 3, 3533}, {9144, 8, 3, 3539}, {9152, 9, 3, 3545},
    {9161, 5, 6, 236}, {9166, 7, 3, 3593}, {9173, 4, 4, 4114}, {9177, 3, 3, 146}, {9180, 4, 3, 225}, {9184, 6, 3, 1400},
    {9190, 5, 2, 1115}, {9195, 3, 3, 2000}, {9198, 4, 3, 3587}, {9202, 4, 3, 3635}, {9206, 4, 3, 3632}, {9210, 4, 3, 129},
    {9214, 5, 3, 3563}, {9219, 9, 3, 3563}, {9228, 4, 3, 3557}, {9232, 5, 3, 3557}, {9237, 6, 3, 129}, {9243, 6, 3, 2309},
    {9249, 5, 4, 4294}, {9254, 6, 1, 375}, {9260, 5, 3, 1298}, {9265, 5, 3, 1988}, {9270, 6, 3, 3575}, {9276, 6, 3, 3581},
    {9282, 2, 1, 8}, {9284, 3, 1, 8}, {9287, 5, 3, 3641}, {9292, 6, 3, 3515}, {9298, 6, 3, 2273}, {9304, 7, 3, 3131},
    {9311, 8, 3, 3521}, {9319, 10, 3, 3551}, {9329, 7, 3, 3074}, {9336, 7, 3, 2273}, {9343, 10, 3, 236}, {9353, 11, 3, 3569},
    {9364, 8, 3, 2000}, {9372, 7, 3, 1988}, {9379, 10, 6, 129}, {9389, 5, 6, 129}, {9394, 5, 3, 1640}, {9399, 7, 3, 17},
    {9406, 5, 2, 437}, {9411, 7, 3, 1301}, {9418, 7, 2, 1099}, {9425, 5, 3, 1466}, {9430, 8, 3, 2939}, {9438, 6, 3, 1535},
    {9444, 5, 3, 1313}, {9449, 6, 2, 639}, {9455, 7, 3, 2732}, {9462, 10, 3, 2732}, {9472, 7, 3, 1223}, {9479, 7, 3, 2186},
    {9486, 4, 4, 4118}, {9490, 9, 3, 2894}, {9499, 9, 3, 2897}, {9508, 6, 3, 1682}, {9514, 7, 3, 1835}, {9521, 14, 3, 1523},
    {9535, 15, 3, 1526}, {9550, 5, 4, 4298}, {9555, 7, 3, 1187}, {9562, 5, 4, 3934}, {9567, 7, 3, 1313}, {9574, 7, 2, 643},
    {9581, 7, 3, 1256}, {9588, 7, 3, 1178}, {9595, 6, 2, 533}, {9601, 7, 2, 533}, {9608, 3, 3, 1280}, {9611, 5, 2, 535},
    {9616, 6, 2, 535}, {9622, 4, 2, 1063}, {9626, 5, 2, 1057}, {9631, 5, 2, 381}, {9636, 6, 2, 381}, {9642, 4, 3, 1640},
    {9646, 4, 4, 4122}, {9650, 6, 2, 531}, {9656, 7, 2, 531}, {9663, 3, 3, 1415}, {9666, 7, 3, 3296}, {9673, 6, 3, 1796},
    {9679, 7, 3, 3254}, {9686, 6, 3, 1370}, {9692, 6, 2, 663}, {9698, 6, 2, 651}, {9704, 6, 3, 1319}, {9710, 9, 3, 1316},
    {9719, 9, 3, 1319}, {9728, 6, 2, 659}, {9734, 5, 3, 2180}, {9739, 6, 2, 813}, {9745, 3, 3, 1706}, {9748, 7, 3, 1295},
    {9755, 6, 3, 1751}, {9761, 9, 3, 3257}, {9770, 7, 2, 659}, {9777, 4, 3, 1790}, {9781, 7, 3, 2189}, {9788, 9, 3, 1361},
    {9797, 9, 3, 2189}, {9806, 9, 3, 3323}, {9815, 8, 3, 3392}, {9823, 5, 2, 1111}, {9828, 6, 2, 655}, {9834, 5, 4, 4302},
    {9839, 5, 2, 901}, {9844, 6, 3, 3392}, {9850, 6, 2, 441}, {9856, 7, 2, 441}, {9863, 5, 4, 3938}, {9868, 5, 3, 1706},
    {9873, 6, 3, 247}, {9879, 8, 3, 242}, {9887, 6, 3, 2348}, {9893, 7, 3, 2345}, {9900, 6, 3, 1706}, {9906, 3, 3, 1277},
    {9909, 7, 2, 647}, {9916, 6, 2, 1121}, {9922, 4, 2, 537}, {9926, 5, 2, 537}, {9931, 6, 2, 667}, {9937, 4, 2, 1065},
    {9941, 4, 4, 4126}, {9945, 6, 2, 817}, {9951, 5, 4, 4306}, {9956, 5, 4, 3942}, {9961, 7, 2, 1125}, {9968, 6, 2, 1117},
    {9974, 6, 2, 903}, {9980, 7, 2, 947}, {9987, 7, 2, 671}, {9994, 4, 2, 1067}, {9998, 4, 4, 4130}, {10002, 7, 2, 673},
    {10009, 5, 2, 1089}, {10014, 5, 2, 1133}, {10019, 5, 4, 4310}, {10024, 5, 4, 3946}, {10029, 6, 3, 1658}, {10035, 5, 3, 1628},
    {10040, 7, 3, 2870}, {10047, 6, 3, 2843}, {10053, 3, 3, 113}, {10056, 4, 3, 3566}, {10060, 5, 3, 3011}, {10065, 7, 2, 677},
    {10072, 9, 3, 3194}, {10081, 7, 3, 1322}, {10088, 7, 2, 905}, {10095, 5, 3, 2783}, {10100, 6, 3, 3119}, {10106, 7, 3, 2783},
    {10113, 4, 3, 3548}, {10117, 5, 2, 401}, {10122, 6, 2, 401}, {10128, 5, 3, 1454}, {10133, 6, 3, 1667}, {10139, 8, 3, 2882},
    {10147, 7, 3, 2876}, {10154, 7, 3, 1523}, {10161, 7, 3, 1529}, {10168, 7, 3, 2927}, {10175, 8, 3, 3062}, {10183, 7, 3, 1505},
    {10190, 4, 3, 3653}, {10194, 7, 3, 2864}, {10201, 5, 3, 303}, {10206, 6, 6, 303}, {10212, 6, 3, 2837}, {10218, 6, 3, 2765},
    {10224, 7, 1, 376}, {10231, 7, 1, 370}, {10238, 6, 3, 3101}, {10244, 8, 3, 3113}, {10252, 8, 3, 3107}, {10260, 7, 2, 685},
    {10267, 7, 2, 681}, {10274, 6, 3, 2384}, {10280, 5, 1, 376}, {10285, 4, 2, 1069}, {10289, 5, 3, 2918}, {10294, 6, 3, 1202},
    {10300, 7, 3, 1208}, {10307, 8, 3, 3026}, {10315, 9, 3, 2948}, {10324, 5, 3, 1547}, {10329, 3, 3, 101}, {10332, 10, 3, 1454},
    {10342, 14, 3, 1505}, {10356, 16, 3, 1571}, {10372, 14, 3, 1568}, {10386, 15, 3, 1601}, {10401, 15, 3, 1466}, {10416, 16, 3, 1598},
    {10432, 18, 3, 1613}, {10450, 20, 3, 1535}, {10470, 15, 3, 2237}, {10485, 4, 3, 230}, {10489, 4, 3, 101}, {10493, 5, 3, 113},
    {10498, 9, 3, 277}, {10507, 4, 3, 277}, {10511, 6, 3, 3644}, {10517, 7, 3, 3530}, {10524, 8, 3, 3536}, {10532, 9, 3, 3542},
    {10541, 5, 6, 230}, {10546, 7, 3, 3590}, {10553, 11, 3, 3548}, {10564, 8, 3, 2270}, {10572, 10, 3, 230}, {10582, 11, 3, 3566},
    {10593, 8, 3, 1997}, {10601, 8, 3, 1985}, {10609, 7, 3, 3083}, {10616, 7, 3, 2390}, {10623, 4, 4, 4134}, {10627, 3, 3, 1997},
    {10630, 4, 3, 3584}, {10634, 6, 3, 1571}, {10640, 6, 3, 1568}, {10646, 7, 3, 3035}, {10653, 6, 3, 2621}, {10659, 5, 2, 1127},
    {10664, 3, 3, 135}, {10667, 6, 3, 1601}, {10673, 9, 3, 2429}, {10682, 7, 3, 3038}, {10689, 6, 3, 2702}, {10695, 7, 2, 689},
    {10702, 7, 3, 2459}, {10709, 11, 3, 2459}, {10720, 4, 3, 123}, {10724, 5, 3, 3560}, {10729, 9, 3, 3560}, {10738, 4, 3, 3554},
    {10742, 5, 3, 3554}, {10747, 6, 3, 123}, {10753, 6, 3, 2306}, {10759, 6, 3, 2795}, {10765, 6, 3, 1676}, {10771, 6, 3, 2777},
    {10777, 14, 3, 2801}, {10791, 19, 3, 2807}, {10810, 11, 3, 2819}, {10821, 15, 3, 2804}, {10836, 14, 3, 1529}, {10850, 15, 3, 1532},
    {10865, 6, 3, 3095}, {10871, 5, 4, 4314}, {10876, 7, 3, 3350}, {10883, 8, 3, 3368}, {10891, 7, 3, 1739}, {10898, 7, 1, 374},
    {10905, 4, 3, 2684}, {10909, 8, 3, 2684}, {10917, 5, 3, 3272}, {10922, 5, 1, 356}, {10927, 7, 3, 3125}, {10934, 6, 3, 1598},
    {10940, 9, 3, 2432}, {10949, 6, 3, 1613}, {10955, 7, 3, 3044}, {10962, 4, 3, 1172}, {10966, 6, 3, 2201}, {10972, 7, 3, 1244},
    {10979, 5, 4, 3950}, {10984, 4, 3, 1541}, {10988, 5, 3, 1985}, {10993, 6, 3, 3572}, {10999, 6, 3, 3578}, {11005, 5, 1, 370},
    {11010, 6, 3, 1193}, {11016, 7, 3, 1199}, {11023, 7, 2, 693}, {11030, 2, 1, 0}, {11032, 3, 1, 0}, {11035, 5, 3, 3638},
    {11040, 6, 3, 3512}, {11046, 6, 3, 2270}, {11052, 7, 3, 2237}, {11059, 7, 3, 2231}, {11066, 7, 3, 3071}, {11073, 8, 3, 3518},
    {11081, 7, 3, 3134}, {11088, 5, 3, 2681}, {11093, 6, 3, 208}, {11099, 6, 3, 2678}, {11105, 9, 3, 2945}, {11114, 8, 3, 3023},
    {11122, 10, 6, 123}, {11132, 5, 6, 123}, {11137, 6, 3, 1832}, {11143, 4, 2, 409}, {11147, 5, 2, 409}, {11152, 5, 3, 2723},
    {11157, 5, 3, 2756}, {11162, 8, 3, 2756}, {11170, 4, 3, 1517}, {11174, 7, 3, 1517}, {11181, 11, 3, 1520}, {11192, 11, 3, 1511},
    {11203, 9, 3, 1514}, {11212, 7, 3, 2648}, {11219, 7, 3, 3344}, {11226, 4, 2, 1071}, {11230, 6, 3, 1184}, {11236, 14, 3, 1760},
    {11250, 4, 4, 4138}, {11254, 4, 3, 1364}, {11258, 5, 2, 421}, {11263, 6, 2, 421}, {11269, 4, 3, 1766}, {11273, 7, 1, 358},
    {11280, 7, 3, 3812}, {11287, 6, 2, 425}, {11293, 7, 2, 425}, {11300, 6, 3, 1727}, {11306, 7, 3, 2114}, {11313, 7, 3, 1829},
    {11320, 8, 3, 3347}, {11328, 5, 3, 3779}, {11333, 5, 3, 1223}, {11338, 7, 3, 1730}, {11345, 7, 3, 2135}, {11352, 5, 4, 4318},
    {11357, 3, 3, 1730}, {11360, 5, 4, 3954}, {11365, 7, 3, 59}, {11372, 3, 2, 907}, {11375, 9, 3, 2183}, {11384, 6, 3, 2183},
    {11390, 4, 5, 225}, {11394, 4, 6, 151}, {11398, 5, 5, 146}, {11403, 11, 3, 1619}, {11414, 16, 3, 1622}, {11430, 4, 5, 220},
    {11434, 4, 6, 140}, {11438, 5, 5, 135}, {11443, 12, 3, 1625}, {11455, 7, 3, 2159}, {11462, 7, 3, 2156}, {11469, 6, 3, 1703},
    {11475, 7, 2, 697}, {11482, 5, 6, 30}, {11487, 4, 3, 1877}, {11491, 5, 5, 272}, {11496, 6, 5, 69}, {11502, 6, 2, 707},
    {11508, 8, 3, 1877}, {11516, 6, 3, 2744}, {11522, 8, 3, 2744}, {11530, 9, 3, 1328}, {11539, 4, 2, 379}, {11543, 5, 2, 379},
    {11548, 6, 5, 80}, {11554, 7, 5, 85}, {11561, 5, 3, 3404}, {11566, 7, 2, 705}, {11573, 7, 2, 701}, {11580, 6, 3, 1871},
    {11586, 9, 5, 267}, {11595, 5, 3, 3401}, {11600, 4, 2, 1073}, {11604, 6, 3, 1181}, {11610, 3, 3, 1934}, {11613, 6, 3, 1649},
    {11619, 7, 3, 2891}, {11626, 6, 3, 1475}, {11632, 8, 3, 1475}, {11640, 6, 5, 90}, {11646, 7, 3, 1940}, {11653, 7, 3, 2903},
    {11660, 6, 5, 64}, {11666, 7, 3, 1697}, {11673, 8, 3, 1697}, {11681, 4, 4, 4142}, {11685, 4, 5, 118}, {11689, 4, 3, 1982},
    {11693, 5, 3, 1982}, {11698, 6, 5, 118}, {11704, 10, 5, 282}, {11714, 5, 5, 282}, {11719, 6, 3, 1994}, {11725, 4, 3, 1976},
    {11729, 5, 3, 1976}, {11734, 6, 3, 1622}, {11740, 6, 3, 1538}, {11746, 6, 3, 3818}, {11752, 3, 3, 1712}, {11755, 4, 3, 2369},
    {11759, 5, 3, 2363}, {11764, 4, 3, 1712}, {11768, 5, 2, 1129}, {11773, 6, 3, 1619}, {11779, 4, 5, 113}, {11783, 6, 3, 1484},
    {11789, 5, 3, 1220}, {11794, 4, 3, 1979}, {11798, 11, 3, 1484}, {11809, 16, 3, 1538}, {11825, 5, 3, 1979}, {11830, 6, 5, 113},
    {11836, 10, 5, 277}, {11846, 5, 5, 277}, {11851, 6, 3, 1973}, {11857, 6, 3, 1991}, {11863, 4, 3, 1973}, {11867, 6, 3, 2318},
    {11873, 7, 3, 2324}, {11880, 5, 3, 1769}, {11885, 5, 4, 4322}, {11890, 3, 2, 403}, {11893, 4, 2, 403}, {11897, 6, 3, 1709},
    {11903, 7, 5, 247}, {11910, 9, 5, 242}, {11919, 8, 3, 1709}, {11927, 8, 3, 2357}, {11935, 8, 3, 2354}, {11943, 6, 3, 1715},
    {11949, 8, 3, 1715}, {11957, 8, 3, 2375}, {11965, 8, 3, 2372}, {11973, 5, 3, 1775}, {11978, 10, 3, 1775}, {11988, 7, 6, 341},
    {11995, 6, 5, 25}, {12001, 8, 3, 3314}, {12009, 4, 3, 2027}, {12013, 7, 3, 2294}, {12020, 5, 5, 309}, {12025, 6, 3, 2027},
    {12031, 8, 5, 309}, {12039, 6, 3, 1625}, {12045, 6, 3, 1487}, {12051, 7, 5, 252}, {12058, 7, 5, 20}, {12065, 12, 3, 1487},
    {12077, 6, 3, 2321}, {12083, 7, 3, 2327}, {12090, 4, 3, 2030}, {12094, 7, 3, 2297}, {12101, 5, 5, 314}, {12106, 5, 4, 3958},
    {12111, 10, 3, 1769}, {12121, 15, 3, 1775}, {12136, 5, 3, 1853}, {12141, 6, 3, 1862}, {12147, 7, 3, 1862}, {12154, 6, 3, 1769},
    {12160, 6, 3, 1775}, {12166, 8, 3, 2300}, {12174, 8, 3, 2303}, {12182, 5, 3, 2039}, {12187, 6, 5, 319}, {12193, 6, 3, 2051},
    {12199, 8, 6, 162}, {12207, 10, 3, 2051}, {12217, 11, 5, 319}, {12228, 6, 3, 2030}, {12234, 8, 5, 314}, {12242, 5, 3, 2042},
    {12247, 6, 5, 324}, {12253, 6, 3, 2054}, {12259, 8, 6, 168}, {12267, 10, 3, 2054}, {12277, 11, 5, 324}, {12288, 5, 3, 2006},
    {12293, 6, 2, 541}, {12299, 7, 2, 541}, {12306, 5, 3, 2003}, {12311, 14, 3, 2318}, {12325, 16, 3, 2324}, {12341, 15, 3, 2321},
    {12356, 17, 3, 2327}, {12373, 3, 2, 909}, {12376, 4, 1, 351}, {12380, 7, 3, 1331}, {12387, 6, 3, 1151}, {12393, 7, 3, 2153},
    {12400, 7, 3, 2831}, {12407, 5, 6, 74}, {12412, 7, 3, 2150}, {12419, 5, 6, 107}, {12424, 5, 4, 8}, {12429, 8, 3, 3260},
    {12437, 7, 3, 2825}, {12444, 5, 6, 101}, {12449, 5, 4, 0}, {12454, 8, 6, 208}, {12462, 7, 3, 2828}, {12469, 8, 6, 214},
    {12477, 6, 6, 48}, {12483, 6, 3, 1646}, {12489, 7, 3, 2888}, {12496, 6, 3, 1472}, {12502, 8, 3, 1472}, {12510, 7, 3, 2900},
    {12517, 3, 3, 2495}, {12520, 6, 2, 545}, {12526, 7, 2, 545}, {12533, 5, 3, 2105}, {12538, 5, 3, 2102}, {12543, 5, 2, 547},
    {12548, 6, 2, 547}, {12554, 4, 2, 1075}, {12558, 6, 3, 2108}, {12564, 7, 2, 719}, {12571, 5, 3, 3380}, {12576, 5, 3, 2099},
    {12581, 7, 3, 3212}, {12588, 6, 2, 723}, {12594, 6, 3, 3218}, {12600, 4, 4, 4146}, {12604, 5, 2, 829}, {12609, 6, 2, 543},
    {12615, 7, 2, 543}, {12622, 4, 3, 3224}, {12626, 6, 3, 3197}, {12632, 4, 2, 883}, {12636, 5, 3, 1799}, {12641, 6, 3, 1562},
    {12647, 6, 3, 3215}, {12653, 8, 3, 3209}, {12661, 6, 3, 1250}, {12667, 4, 3, 3221}, {12671, 6, 2, 715}, {12677, 6, 2, 933},
    {12683, 8, 2, 913}, {12691, 5, 3, 3200}, {12696, 7, 3, 2090}, {12703, 5, 4, 4326}, {12708, 5, 3, 3203}, {12713, 6, 3, 3206},
    {12719, 6, 3, 2087}, {12725, 3, 3, 1781}, {12728, 6, 3, 1565}, {12734, 4, 3, 3467}, {12738, 6, 3, 1391}, {12744, 8, 3, 1391},
    {12752, 4, 2, 399}, {12756, 5, 2, 399}, {12761, 4, 2, 431}, {12765, 5, 2, 431}, {12770, 7, 3, 2177}, {12777, 5, 3, 3449},
    {12782, 8, 3, 3452}, {12790, 4, 3, 3461}, {12794, 5, 3, 1391}, {12799, 6, 2, 555}, {12805, 7, 2, 555}, {12812, 5, 3, 2096},
    {12817, 6, 2, 549}, {12823, 7, 2, 549}, {12830, 7, 3, 2093}, {12837, 9, 3, 3374}, {12846, 4, 2, 551}, {12850, 5, 2, 551},
    {12855, 6, 3, 2450}, {12861, 4, 3, 1772}, {12865, 4, 2, 423}, {12869, 5, 2, 423}, {12874, 9, 3, 1772}, {12883, 7, 3, 3821},
    {12890, 6, 3, 341}, {12896, 5, 3, 25}, {12901, 4, 2, 1077}, {12905, 7, 1, 353}, {12912, 7, 1, 361}, {12919, 7, 3, 1226},
    {12926, 5, 3, 2132}, {12931, 8, 3, 1229}, {12939, 4, 4, 4150}, {12943, 4, 2, 927}, {12947, 5, 2, 939}, {12952, 7, 3, 1388},
    {12959, 6, 3, 2717}, {12965, 3, 2, 915}, {12968, 10, 3, 2264}, {12978, 4, 2, 941}, {12982, 7, 3, 1313}, {12989, 8, 3, 1310},
    {12997, 7, 3, 1313}, {13004, 5, 1, 359}, {13009, 9, 3, 3329}, {13018, 6, 3, 2111}, {13024, 8, 3, 3326}, {13032, 7, 3, 1733},
    {13039, 7, 3, 3335}, {13046, 6, 3, 3494}, {13052, 6, 2, 413}, {13058, 7, 2, 413}, {13065, 8, 3, 3338}, {13073, 8, 3, 3341},
    {13081, 3, 2, 413}, {13084, 9, 3, 3317}, {13093, 5, 4, 4330}, {13098, 5, 2, 385}, {13103, 6, 2, 385}, {13109, 3, 3, 2009},
    {13112, 4, 3, 3671}, {13116, 5, 3, 3683}, {13121, 6, 3, 2015}, {13127, 4, 3, 309}, {13131, 5, 3, 2009}, {13136, 11, 3, 3683},
    {13147, 12, 3, 2015}, {13159, 7, 3, 309}, {13166, 12, 3, 3689}, {13178, 9, 3, 3677}, {13187, 9, 3, 2312}, {13196, 8, 3, 2021},
    {13204, 6, 3, 1232}, {13210, 7, 3, 1340}, {13217, 5, 3, 3677}, {13222, 6, 3, 3689}, {13228, 7, 3, 2312}, {13235, 5, 3, 1718},
    {13240, 9, 3, 2444}, {13249, 9, 3, 2411}, {13258, 9, 3, 2414}, {13267, 5, 3, 1748}, {13272, 7, 3, 1748}, {13279, 6, 3, 2021},
    {13285, 7, 3, 2162}, {13292, 5, 4, 3962}, {13297, 4, 2, 931}, {13301, 7, 3, 1154}, {13308, 4, 4, 4154}, {13312, 5, 3, 3296},
    {13317, 5, 4, 4334}, {13322, 7, 3, 1265}, {13329, 5, 4, 3966}, {13334, 12, 3, 1307}, {13346, 8, 3, 3320}, {13354, 6, 1, 368},
    {13360, 8, 3, 1931}, {13368, 4, 1, 350}, {13372, 5, 1, 350}, {13377, 6, 3, 1661}, {13383, 5, 3, 1634}, {13388, 7, 3, 2873},
    {13395, 6, 3, 2846}, {13401, 5, 3, 3017}, {13406, 5, 5, 54}, {13411, 7, 2, 727}, {13418, 6, 3, 1745}, {13424, 9, 3, 3191},
    {13433, 5, 3, 2786}, {13438, 6, 3, 3122}, {13444, 6, 3, 3149}, {13450, 7, 3, 2786}, {13457, 5, 2, 433}, {13462, 6, 2, 433},
    {13468, 5, 3, 1460}, {13473, 7, 3, 3068}, {13480, 6, 3, 1670}, {13486, 8, 3, 2885}, {13494, 6, 3, 252}, {13500, 7, 3, 2879},
    {13507, 7, 3, 1526}, {13514, 7, 3, 1532}, {13521, 7, 3, 2936}, {13528, 8, 3, 3065}, {13536, 7, 3, 1508}, {13543, 6, 3, 20},
    {13549, 7, 3, 2867}, {13556, 6, 3, 1823}, {13562, 10, 3, 1343}, {13572, 6, 3, 2840}, {13578, 6, 3, 2768}, {13584, 7, 1, 378},
    {13591, 7, 1, 372}, {13598, 6, 3, 3104}, {13604, 8, 3, 3110}, {13612, 8, 3, 3116}, {13620, 7, 2, 735}, {13627, 7, 2, 731},
    {13634, 6, 3, 2387}, {13640, 5, 1, 378}, {13645, 4, 2, 1079}, {13649, 5, 3, 2921}, {13654, 8, 3, 3032}, {13662, 6, 3, 1205},
    {13668, 7, 3, 1205}, {13675, 5, 3, 1550}, {13680, 5, 3, 1349}, {13685, 8, 3, 1346}, {13693, 9, 3, 1349}, {13702, 6, 3, 1352},
    {13708, 5, 3, 2645}, {13713, 3, 2, 407}, {13716, 4, 2, 407}, {13720, 7, 3, 3086}, {13727, 7, 3, 2393}, {13734, 4, 4, 4158},
    {13738, 6, 3, 1583}, {13744, 6, 3, 1580}, {13750, 7, 3, 3041}, {13757, 4, 2, 917}, {13761, 5, 2, 949}, {13766, 11, 3, 1460},
    {13777, 15, 3, 1508}, {13792, 17, 3, 1583}, {13809, 15, 3, 1580}, {13824, 16, 3, 1592}, {13840, 18, 3, 1616}, {13858, 17, 3, 1607},
    {13875, 16, 3, 20}, {13891, 16, 3, 2240}, {13907, 5, 2, 827}, {13912, 13, 3, 1907}, {13925, 6, 3, 1592}, {13931, 6, 3, 1616},
    {13937, 4, 3, 1175}, {13941, 7, 3, 2462}, {13948, 11, 3, 2462}, {13959, 6, 3, 3806}, {13965, 6, 3, 2798}, {13971, 6, 3, 1679},
    {13977, 6, 3, 2780}, {13983, 6, 3, 3098}, {13989, 5, 4, 4338}, {13994, 7, 3, 3353}, {14001, 8, 3, 3371}, {14009, 5, 1, 357},
    {14014, 7, 3, 3128}, {14021, 9, 3, 3308}, {14030, 6, 3, 1607}, {14036, 7, 3, 1247}, {14043, 5, 4, 3970}, {14048, 4, 3, 1544},
    {14052, 5, 1, 372}, {14057, 6, 3, 1196}, {14063, 7, 3, 1196}, {14070, 7, 3, 2240}, {14077, 7, 3, 2234}, {14084, 5, 3, 2666},
    {14089, 6, 3, 214}, {14095, 6, 3, 2663}, {14101, 9, 3, 3245}, {14110, 8, 3, 3029}, {14118, 3, 3, 1355}, {14121, 7, 2, 739},
    {14128, 6, 3, 1199}, {14134, 3, 3, 2012}, {14137, 4, 3, 3674}, {14141, 5, 3, 3686}, {14146, 7, 2, 751}, {14153, 6, 3, 2018},
    {14159, 4, 3, 314}, {14163, 7, 2, 747}, {14170, 6, 2, 743}, {14176, 5, 3, 3680}, {14181, 6, 3, 3692}, {14187, 7, 3, 2315},
    {14194, 9, 3, 3311}, {14203, 6, 3, 157}, {14209, 4, 2, 1081}, {14213, 5, 3, 2219}, {14218, 6, 3, 2120}, {14224, 6, 3, 3473},
    {14230, 6, 3, 1652}, {14236, 7, 3, 2894}, {14243, 6, 3, 1478}, {14249, 8, 3, 1478}, {14257, 4, 2, 393}, {14261, 5, 2, 393},
    {14266, 5, 1, 364}, {14271, 7, 3, 2906}, {14278, 9, 3, 1736}, {14287, 6, 3, 1736}, {14293, 5, 3, 2759}, {14298, 4, 4, 4162},
    {14302, 7, 3, 2435}, {14309, 6, 3, 2747}, {14315, 7, 2, 1097}, {14322, 5, 2, 1095}, {14327, 9, 3, 1766}, {14336, 14, 3, 1772},
    {14350, 3, 2, 405}, {14353, 4, 2, 405}, {14357, 6, 2, 921}, {14363, 7, 2, 919}, {14370, 7, 2, 919}, {14377, 4, 3, 48},
    {14381, 7, 3, 3476}, {14388, 5, 3, 1859}, {14393, 6, 3, 1859}, {14399, 5, 3, 3617}, {14404, 6, 3, 3623}, {14410, 5, 3, 3614},
    {14415, 6, 3, 3620}, {14421, 6, 3, 1868}, {14427, 8, 3, 3332}, {14435, 8, 3, 3059}, {14443, 6, 3, 1454}, {14449, 14, 3, 1736},
    {14463, 7, 3, 3365}, {14470, 9, 3, 3266}, {14479, 5, 3, 1766}, {14484, 6, 3, 2438}, {14490, 4, 3, 3650}, {14494, 5, 3, 297},
    {14499, 6, 6, 297}, {14505, 7, 2, 1103}, {14512, 4, 1, 362}, {14516, 5, 3, 3233}, {14521, 7, 3, 2453}, {14528, 5, 4, 4342},
    {14533, 7, 3, 2726}, {14540, 10, 3, 2726}, {14550, 5, 3, 1772}, {14555, 6, 3, 196}, {14561, 7, 6, 196}, {14568, 6, 3, 202},
    {14574, 7, 6, 202}, {14581, 6, 3, 186}, {14587, 7, 3, 2075}, {14594, 9, 3, 186}, {14603, 11, 3, 2075}, {14614, 6, 3, 191},
    {14620, 7, 3, 2078}, {14627, 9, 3, 191}, {14636, 11, 3, 2078}, {14647, 4, 3, 2636}, {14651, 7, 3, 2636}, {14658, 7, 3, 2639},
    {14665, 5, 3, 2639}, {14670, 6, 3, 1460}, {14676, 5, 4, 3974}, {14681, 7, 3, 1736}, {14688, 7, 3, 2438}, {14695, 7, 3, 2222},
    {14702, 5, 3, 2714}, {14707, 6, 3, 2711}, {14713, 16, 2, 951}, {14729, 12, 2, 939}, {14741, 6, 2, 409}, {14747, 4, 3, 162},
    {14751, 5, 3, 319}, {14756, 7, 3, 3701}, {14763, 5, 3, 2045}, {14768, 8, 3, 3719}, {14776, 8, 3, 3713}, {14784, 6, 3, 329},
    {14790, 6, 3, 174}, {14796, 8, 3, 3707}, {14804, 8, 3, 3077}, {14812, 7, 3, 162}, {14819, 9, 3, 2045}, {14828, 10, 3, 319},
    {14838, 10, 3, 174}, {14848, 11, 3, 329}, {14859, 7, 3, 3731}, {14866, 7, 3, 3761}, {14873, 7, 3, 3755}, {14880, 5, 3, 2012},
    {14885, 11, 3, 3686}, {14896, 12, 3, 2018}, {14908, 7, 3, 314}, {14915, 12, 3, 3692}, {14927, 9, 3, 3680}, {14936, 9, 3, 2315},
    {14945, 8, 3, 157}, {14953, 4, 3, 1724}, {14957, 5, 3, 2738}, {14962, 4, 2, 429}, {14966, 5, 2, 429}, {14971, 4, 2, 415},
    {14975, 5, 2, 415}, {14980, 4, 2, 417}, {14984, 5, 2, 417}, {14989, 4, 3, 168}, {14993, 5, 3, 324}, {14998, 7, 3, 3704},
    {15005, 8, 3, 3770}, {15013, 5, 3, 2048}, {15018, 8, 3, 3722}, {15026, 8, 3, 2774}, {15034, 8, 3, 3767}, {15042, 8, 3, 3080},
    {15050, 8, 3, 3716}, {15058, 6, 3, 335}, {15064, 6, 3, 180}, {15070, 8, 3, 3710}, {15078, 7, 3, 168}, {15085, 9, 3, 2048},
    {15094, 10, 3, 324}, {15104, 10, 3, 180}, {15114, 11, 3, 335}, {15125, 7, 3, 3734}, {15132, 7, 3, 3758}, {15139, 7, 3, 3764},
    {15146, 6, 3, 1655}, {15152, 7, 3, 2897}, {15159, 6, 3, 1481}, {15165, 8, 3, 1481}, {15173, 7, 3, 2909}, {15180, 5, 2, 505},
    {15185, 6, 2, 505}, {15191, 7, 3, 2420}, {15198, 4, 2, 923}, {15202, 5, 3, 2465}, {15207, 7, 2, 759}, {15214, 7, 2, 755},
    {15221, 4, 2, 1083}, {15225, 5, 3, 1286}, {15230, 7, 3, 2417}, {15237, 4, 4, 4166}, {15241, 7, 3, 1817}, {15248, 10, 3, 1817},
    {15258, 6, 2, 899}, {15264, 9, 2, 935}, {15273, 7, 2, 935}, {15280, 12, 3, 1874}, {15292, 9, 3, 48}, {15301, 7, 3, 1157},
    {15308, 6, 3, 1874}, {15314, 7, 3, 48}, {15321, 5, 2, 567}, {15326, 6, 2, 567}, {15332, 6, 2, 831}, {15338, 5, 2, 489},
    {15343, 6, 2, 489}, {15349, 7, 3, 2117}, {15356, 9, 3, 3362}, {15365, 7, 3, 3359}, {15372, 5, 3, 1796}, {15377, 5, 3, 2903},
    {15382, 4, 3, 2129}, {15386, 7, 3, 2447}, {15393, 7, 3, 3815}, {15400, 5, 4, 4346}, {15405, 8, 3, 3776}, {15413, 5, 3, 2906},
    {15418, 7, 3, 1238}, {15425, 6, 3, 1358}, {15431, 9, 3, 2660}, {15440, 13, 3, 2675}, {15453, 13, 3, 2681}, {15466, 15, 3, 208},
    {15481, 10, 3, 1928}, {15491, 14, 3, 2666}, {15505, 16, 3, 214}, {15521, 7, 3, 2690}, {15528, 5, 3, 1928}, {15533, 9, 3, 3386},
    {15542, 8, 3, 3383}, {15550, 6, 3, 3242}, {15556, 8, 3, 3389}, {15564, 9, 3, 2486}, {15573, 5, 4, 3978}, {15578, 5, 2, 1091},
    {15583, 6, 2, 1131}, {15589, 7, 2, 763}, {15596, 6, 3, 1967}, {15602, 17, 3, 1493}, {15619, 18, 3, 1499}, {15637, 5, 3, 1631},
    {15642, 5, 3, 3014}, {15647, 6, 2, 559}, {15653, 7, 2, 559}, {15660, 5, 3, 1457}, {15665, 6, 2, 1135}, {15671, 7, 2, 775},
    {15678, 5, 2, 561}, {15683, 6, 2, 561}, {15689, 4, 2, 1085}, {15693, 6, 3, 1595}, {15699, 7, 2, 783}, {15706, 6, 3, 3047},
    {15712, 7, 3, 3089}, {15719, 4, 4, 4170}, {15723, 6, 2, 557}, {15729, 7, 2, 557}, {15736, 6, 3, 1577}, {15742, 6, 3, 1574},
    {15748, 6, 3, 2618}, {15754, 7, 3, 2423}, {15761, 9, 3, 2423}, {15770, 7, 3, 2405}, {15777, 6, 3, 2696}, {15783, 6, 2, 771},
    {15789, 3, 2, 395}, {15792, 4, 2, 395}, {15796, 6, 2, 787}, {15802, 5, 4, 4350}, {15807, 8, 3, 1457}, {15815, 12, 3, 1469},
    {15827, 14, 3, 1577}, {15841, 15, 3, 1574}, {15856, 6, 3, 2066}, {15862, 5, 2, 925}, {15867, 6, 2, 937}, {15873, 8, 2, 925},
    {15881, 11, 3, 1604}, {15892, 7, 3, 2426}, {15899, 9, 3, 2426}, {15908, 7, 3, 2402}, {15915, 6, 2, 779}, {15921, 6, 3, 2699},
    {15927, 5, 4, 3982}, {15932, 6, 3, 2336}, {15938, 7, 2, 767}, {15945, 5, 3, 2660}, {15950, 6, 3, 2657}, {15956, 6, 3, 1604},
    {15962, 4, 2, 563}, {15966, 5, 2, 563}, {15971, 8, 3, 3155}, {15979, 5, 3, 1643}, {15984, 5, 3, 3791}, {15989, 6, 3, 3794},
    {15995, 6, 3, 2138}, {16001, 7, 3, 3140}, {16008, 11, 2, 951}, {16019, 9, 2, 947}, {16028, 11, 3, 1700}, {16039, 7, 2, 939},
    {16046, 6, 2, 941}, {16052, 10, 3, 1748}, {16062, 5, 3, 1469}, {16067, 7, 2, 949}, {16074, 9, 2, 919}, {16083, 13, 6, 174},
    {16096, 14, 6, 329}, {16110, 13, 6, 180}, {16123, 14, 6, 335}, {16137, 9, 2, 935}, {16146, 16, 3, 2165}, {16162, 17, 3, 2168},
    {16179, 4, 2, 1051}, {16183, 6, 3, 2123}, {16189, 4, 3, 1781}, {16193, 7, 3, 2192}, {16200, 6, 3, 1925}, {16206, 7, 3, 2330},
    {16213, 7, 1, 377}, {16220, 5, 1, 377}, {16225, 4, 4, 4174}, {16229, 6, 3, 2165}, {16235, 6, 6, 162}, {16241, 6, 6, 168},
    {16247, 5, 4, 4354}, {16252, 6, 3, 1748}, {16258, 6, 3, 2168}, {16264, 5, 4, 3986}, {16269, 7, 6, 329}, {16276, 7, 6, 174},
    {16283, 7, 6, 335}, {16290, 7, 6, 180}, {16297, 8, 3, 3137}, {16305, 6, 2, 791}, {16311, 7, 3, 3470}, {16318, 6, 3, 1778},
    {16324, 7, 3, 1922}, {16331, 7, 3, 1337}, {16338, 4, 4, 4178}, {16342, 5, 4, 4358}, {16347, 3, 3, 1337}, {16350, 3, 3, 1850},
    {16353, 7, 3, 1850}, {16360, 5, 4, 3990}, {16365, 5, 3, 2210}, {16370, 6, 3, 2693}, {16376, 5, 3, 2213}, {16381, 6, 3, 2669},
    {16387, 4, 4, 4182}, {16391, 6, 3, 2816}, {16397, 6, 3, 2807}, {16403, 3, 2, 911}, {16406, 6, 3, 2810}, {16412, 6, 3, 2801},
    {16418, 5, 3, 2819}, {16423, 5, 3, 2366}, {16428, 6, 3, 3281}, {16434, 5, 4, 4362}, {16439, 7, 3, 3284}, {16446, 7, 3, 3287},
    {16453, 6, 3, 2813}, {16459, 6, 3, 2804}, {16465, 5, 4, 3994}, {16470, 7, 3, 3293}, {16477, 7, 3, 3290}, {16484, 6, 3, 2654},
    {16490, 5, 3, 2207}, {16495, 7, 3, 2204}, {16502, 6, 2, 565}, {16508, 7, 2, 565}, {16515, 5, 2, 1109}, {16520, 6, 2, 795},
    {16526, 4, 2, 1101}, {16530, 3, 2, 389}, {16533, 4, 2, 389}, {16537, 4, 4, 4186}, {16541, 5, 2, 1123}, {16546, 5, 4, 4366},
    {16551, 5, 4, 3998}, {16556, 5, 2, 1107}, {16561, 4, 2, 569}, {16565, 5, 2, 569}, {16570, 7, 2, 801}, {16577, 7, 2, 809},
    {16584, 4, 2, 1061}, {16588, 5, 2, 805}, {16593, 7, 3, 1367}, {16600, 5, 2, 895}, {16605, 4, 4, 4190}, {16609, 5, 2, 1059},
    {16614, 8, 3, 1664}, {16622, 5, 4, 4370}, {16627, 5, 4, 4002}, {16632, 4, 3, 1169}, {16636, 5, 3, 1166},
}};

const std::array<std::uint16_t, initialCount + 1> firstOfInitial = {{
    0, 27, 39, 75, 129, 159, 167, 189, 201, 230, 237, 245, 305, 314, 386, 415,
    434, 439, 484, 524, 547, 587, 604, 609, 613, 624, 634, 634, 634, 634, 634, 634,
    634, 703, 819, 918, 984, 1051, 1090, 1150, 1178, 1234, 1242, 1252, 1406, 1446, 1614, 1675,
    1744, 1755, 1859, 2017, 2075, 2127, 2169, 2180, 2204, 2218, 2231,
}};
// clang-format on

}  // namespace vellark::HTMLEntityTable
